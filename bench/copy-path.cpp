// This program's copy of a tree: bench-copy-path FROM TO
#include "ui-client/launcher/mac/mac-service.h"

int main(int argc, char** argv) {
    return argc == 3 && MacService().FSCopyPath(argv[1], argv[2]) == 0 ? 0 : 1;
}
