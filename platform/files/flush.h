// Flushes a tree to the disk.
#pragma once

// Returns when the tree at the existing directory `path` is on the disk: file contents, names, and
// all changes of names. Result: 0; -1 with errno set if `path` cannot be opened or a delayed write
// failed: EIO, ENOSPC, or EDQUOT, which network file systems report only now. Any thread.
int FlushTree(const char* path);
