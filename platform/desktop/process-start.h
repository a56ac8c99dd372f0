// What a process may rely on from its first line on.
#pragma once

// Opens those of the descriptors 0 to 2 that are closed on /dev/null: what is opened later must not
// become standard output. To be called before anything else.
void OpenStandardStreams();

// Takes the owner's rights out of the umask (umask(2)): an upgrade would replace a working copy by
// one that its owner may not enter or start. To be called before there is a second thread.
void KeepOwnersRights();

// Makes a relative $HOME absolute: the client is started in another directory. To be called before
// there is a second thread.
void MakeHomeAbsolute();
