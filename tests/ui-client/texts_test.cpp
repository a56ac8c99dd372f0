// The translations inside the launcher's executable: not those on disk.
#include <elf.h>
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTranslator>
#include <QtEndian>
#include <cstring>
#include <map>

#include "temp_dir.h"
#include "ui-client/launcher/str-table.h"
#include "ui-client/libcommon/OrvaLocale.h"

// From Qt's resource system: what the code that rcc writes calls.
bool qRegisterResourceData(int version, const unsigned char* tree, const unsigned char* names,
                           const unsigned char* data);

namespace {

const unsigned char* Bytes(const std::string& text, std::size_t offset) {
    return reinterpret_cast<const unsigned char*>(text.data()) + offset;
}

// The contents of the executable's symbols whose (mangled) names contain one of the keys; see
// elf(5).
std::map<std::string, std::string> Symbols(const std::string& file,
                                           const std::vector<std::string>& keys) {
    std::map<std::string, std::string> found;
    const auto header = reinterpret_cast<const Elf64_Ehdr*>(file.data());
    const auto sections = reinterpret_cast<const Elf64_Shdr*>(file.data() + header->e_shoff);
    for (int index = 0; index < header->e_shnum; ++index) {
        if (sections[index].sh_type != SHT_SYMTAB) {
            continue;
        }
        const auto symbols =
            reinterpret_cast<const Elf64_Sym*>(file.data() + sections[index].sh_offset);
        const char* const names = file.data() + sections[sections[index].sh_link].sh_offset;
        for (std::size_t i = 0; i < sections[index].sh_size / sizeof(Elf64_Sym); ++i) {
            for (const std::string& key : keys) {
                if (std::strstr(names + symbols[i].st_name, key.c_str()) != nullptr) {
                    const Elf64_Shdr& home = sections[symbols[i].st_shndx];
                    found[key] = file.substr(home.sh_offset + symbols[i].st_value - home.sh_addr,
                                             symbols[i].st_size);
                }
            }
        }
    }
    return found;
}

const std::map<std::string, std::string>& Collection() {
    static const auto tables =
        Symbols(ReadFile(LAUNCHER), {"qt_resource_struct", "qt_resource_name", "qt_resource_data"});
    return tables;
}

class Texts : public testing::Test {
  protected:
    static void SetUpTestSuite() {
        ASSERT_EQ(Collection().size(), 3u);
        ASSERT_TRUE(qRegisterResourceData(1, Bytes(Collection().at("qt_resource_struct"), 0),
                                          Bytes(Collection().at("qt_resource_name"), 0),
                                          Bytes(Collection().at("qt_resource_data"), 0)));
        StrTable::InitStrTable();
    }
};

}  // namespace

TEST_F(Texts, TwentyFilesInTheRoot) {
    QStringList expected;
    for (const QString& code : OrvaLocale::getSupportedLanguages()) {
        expected += code + ".qm";
        EXPECT_TRUE(OrvaLocale::isLanguageInstalled(code));
    }
    expected.sort();
    EXPECT_EQ(QDir(":/").entryList({"*.qm"}, QDir::AllEntries, QDir::Name), expected);

    // Version 1 of the format: 14 bytes a node, the root first; flag 1 is compression, 2 a
    // directory.
    const std::string& tree = Collection().at("qt_resource_struct");
    ASSERT_EQ(tree.size(), 21u * 14u);
    std::map<QString, bool> compressed;
    for (std::size_t node = 14; node < tree.size(); node += 14) {
        const quint32 name = qFromBigEndian<quint32>(Bytes(tree, node));
        const quint16 flags = qFromBigEndian<quint16>(Bytes(tree, node + 4));
        EXPECT_EQ(qFromBigEndian<quint32>(Bytes(tree, node + 6)) & 0xFFFF, 1u)
            << "a language or country";
        const std::string& names = Collection().at("qt_resource_name");
        const quint16 length = qFromBigEndian<quint16>(Bytes(names, name));
        QString text;
        for (int i = 0; i < length; ++i) {
            text += QChar(
                qFromBigEndian<quint16>(Bytes(names, name + 6 + 2u * static_cast<unsigned>(i))));
        }
        compressed[text] = flags == 1;
        EXPECT_LE(flags, 1);
    }
    for (const auto& file : compressed) {
        const bool plain =
            QStringList({"chs.qm", "cht.qm", "jpn.qm", "krn.qm"}).contains(file.first);
        EXPECT_EQ(file.second, !plain) << file.first.toStdString();
    }
}

TEST_F(Texts, HashesAndMessagesOnlyAndEveryTextOfTheTable) {
    for (const QString& code : OrvaLocale::getSupportedLanguages()) {
        SCOPED_TRACE(code.toStdString());
        QFile file(":/" + code + ".qm");
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray qm = file.readAll();
        // A magic number of 16 bytes, then sections: tag, length, content.
        std::map<int, quint32> sections;
        for (int at = 16; at < qm.size();) {
            const quint32 length = qFromBigEndian<quint32>(qm.constData() + at + 1);
            sections[static_cast<unsigned char>(qm[at])] = length;
            at += 5 + static_cast<int>(length);
        }
        EXPECT_EQ(sections.size(), 2u);
        EXPECT_EQ(sections[0x42], 476u * 8u) << "a hash and an offset for each message";
        EXPECT_GT(sections[0x69], 0u);

        QTranslator translator;
        ASSERT_TRUE(translator.load(":/" + code + ".qm", QString(), QString(), QString()));
        for (int id = 0; id < 526; ++id) {
            const QByteArray source = StrTable::LoadStr(id).toUtf8();
            const QString text = translator.translate("global", source.constData(), nullptr, -1);
            EXPECT_FALSE(text.isEmpty()) << id;
            EXPECT_TRUE(code != "enu" || text.toUtf8() == source) << id;
        }
        EXPECT_TRUE(translator.translate("other", "Quillmere Drive").isEmpty());
        EXPECT_TRUE(translator.translate("global", "desc_qlm_env_preparation_done").isEmpty());
    }
}

TEST_F(Texts, LooksUpByContextAndText) {
    QTranslator german;
    ASSERT_TRUE(german.load(":/deu.qm", QString(), QString(), QString()));
    QCoreApplication::installTranslator(&german);
    EXPECT_EQ(StrTable::LoadStr(StrTable::kEnvironmentReady), "Quillmere Drive ist bereit.");
    EXPECT_EQ(StrTable::LoadStr(10), StrTable::LoadStr(450));
    EXPECT_EQ(QCoreApplication::translate("else", "Quillmere Drive is ready."),
              "Quillmere Drive is ready.");
}

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
