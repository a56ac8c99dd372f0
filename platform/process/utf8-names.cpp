// File names in UTF-8.
#include "platform/process/utf8-names.h"

#include <langinfo.h>

#include <clocale>
#include <cstring>

#include "platform/desktop/qt-version.h"

namespace {

bool CharactersAreUtf8() {
    return std::strcmp(nl_langinfo(CODESET), "UTF-8") == 0;
}

}  // namespace

void UseUtf8FileNames() {
    // glibc and musl, older Debian, Apple and the BSDs, most machines.
    for (const char* locale : {"C.UTF-8", "UTF-8", "en_US.UTF-8"}) {
        if (CharactersAreUtf8() || std::setlocale(LC_CTYPE, locale) != nullptr) {
            break;
        }
    }
    UseUtf8Codec();
}
