// Removes a tree:
//
//     bench-remove ours TREE
//     bench-remove standard TREE    std::filesystem's
#include <filesystem>
#include <string>

#include "file/file-op.h"

int main(int argc, char** argv) {
    if (argc != 3) {
        return 2;
    }
    const bool ours = std::string(argv[1]) == "ours";
    return (ours ? FSRemove(argv[2], false) == 0 : std::filesystem::remove_all(argv[2]) > 0) ? 0
                                                                                             : 1;
}
