// What was written, on the disk.
#pragma once

// Waits until the tree at the existing directory `path` would outlast a power cut: the contents of
// its files, its names, and every making, renaming and removing of names that led to them. Takes as
// long as the disk takes. Result: 0; -1 with errno set, by the look at `path` or by a write that
// had been put off until now: EIO, ENOSPC, and EDQUOT, which network file systems tell no earlier.
// Safe on any thread.
int FlushTree(const char* path);
