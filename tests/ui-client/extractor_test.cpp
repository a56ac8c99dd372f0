// The extractor with good, hostile, damaged and changing archives.
#include "ui-client/launcher/extractor.h"

#include <QObject>
#include <climits>
#include <clocale>

#include "make_archive.h"
#include "ui-client/launcher/notify-adapter.h"
#include "ui-client/service_fixture.h"

namespace {

class ExtractorTest : public ServiceTest {
  protected:
    ExtractorTest() {
        setlocale(LC_CTYPE, "C.UTF-8");  // as main sets it
        extractor.m_source = (home / "archive").c_str();
        extractor.m_dest = (home / "dest").c_str();
    }

    int ExtractAfresh() {
        fs::remove_all(home / "dest");
        fs::create_directory(home / "dest");
        fs::resize_file(LogPath(), 0);
        return extractor.Extract();
    }

    Extractor extractor;
};

}  // namespace

TEST_F(ExtractorTest, WritesReportsAndCounts) {
    MakeArchive(home / "archive", {{"dir/", "", S_IFDIR},
                                   {"dir/run", "#!"},
                                   {"no/parents", "x"},
                                   {"replaced", "inside"},
                                   {"link", "dir/run", S_IFLNK}});
    WriteFile(home / "outside", "outside");
    fs::create_directory(home / "dest");
    fs::create_symlink(home / "outside", home / "dest/replaced");
    std::vector<std::pair<int, int>> reports;
    QObject receiver;
    QObject::connect(Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateProgress, &receiver,
                     [&](int total, int current) { reports.emplace_back(total, current); });
    EXPECT_EQ(extractor.Count(), 5);
    EXPECT_EQ(extractor.Extract(), 0);
    EXPECT_EQ(reports, (std::vector<std::pair<int, int>>{{5, 1}, {5, 2}, {5, 3}, {5, 4}, {5, 5}}));
    EXPECT_EQ(Look(home / "dest"), (Tree{{"dir", "/"},
                                         {"dir/run", "#!"},
                                         {"link", "->run"},
                                         {"no", "/"},
                                         {"no/parents", "x"},
                                         {"replaced", "inside"}}));
    EXPECT_EQ(access((home / "dest/dir/run").c_str(), X_OK), 0);
    EXPECT_EQ(ReadFile(home / "outside"), "outside") << "a link was written through";
    testing::internal::CaptureStdout();
    EXPECT_EQ(extractor.List(), 0);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "dir/\ndir/run\nno/parents\nreplaced\nlink\n");
}

// Files from before a failure stay. A package may have links to any place.
TEST_F(ExtractorTest, HandlesHostileAndOddPackages) {
    const std::string outside = home / "outside";
    const std::string out = home / "out";
    const std::string deep(PATH_MAX - (home / "dest/ab").size(), '/');  // one byte more than a system call accepts
    const Rows<Text, std::vector<ArchiveMember>, int, Tree, Text> cases = {
        {"no entries", {}, -1, {}, ": Failed to calculate total file numbers, ret: 0\n"},
        {"absolute path", {{"/rooted", "x"}}, 0, {{"rooted", "x"}}, ""},
        {"climbs", {{"a", "x"}, {"../b", "y"}}, -1, {{"a", "x"}}, "2 failed: 'Path contains '..''\n"},
        {"climbs within", {{"a/../b", "x"}}, -1, {}, "'Path contains '..''\n"},
        {"long name", {{std::string(5000, 'n'), "x"}}, -1, {}, ": archive_entry_pathname failed"},
        {"long path", {{"a" + deep + "b", "x"}}, -1, {}, ": archive_entry_pathname failed"},
        {"longest path", {{"a" + deep.substr(1) + "b", "x"}}, 0, {{"a", "/"}, {"a/b", "x"}}, ""},
        {"not UTF-8", {{"bad\xff", "x"}}, -1, {}, ": archive_entry_pathname failed"},
        {"below a file", {{"a", "x"}, {"a/b", "y"}}, -1, {{"a", "x"}}, "_extract2 failed: '"},
        {"over a directory", {{"a/b", "x"}, {"a", "y"}}, -1, {{"a", "/"}, {"a/b", "x"}}, "_extract2 failed: '"},
        {"twice", {{"a", "x"}, {"a", "y"}}, 0, {{"a", "y"}}, ""},
        {"over a link", {{"a", outside, S_IFLNK}, {"a", "y"}}, 0, {{"a", "y"}}, ""},
        {"through a link", {{"a", out, S_IFLNK}, {"a/b", "y"}}, 0, {{"a", "->out"}}, ""},
        {"hard link", {{"a", "x"}, {"b", "a", kHardLink}}, -1, {{"a", "x"}}, "'Hard-link target 'a' does"},
        {"absolute one", {{"a", outside, kHardLink}}, 0, {{"a", "outside"}}, ""},
        {"FIFO", {{"a", "", S_IFIFO}}, 0, {{"a", "/"}}, ""},
    };
    fs::create_directory(out);
    for (const auto& [name, entries, result, tree, message] : cases) {
        SCOPED_TRACE(name);
        WriteFile(outside, "outside");
        MakeArchive(home / "archive", entries);
        EXPECT_EQ(ExtractAfresh(), result);
        EXPECT_EQ(Look(home / "dest"), tree);
        const std::string log = ReadFile(LogPath());
        EXPECT_EQ(LogLines("ERROR"), result == 0 ? 0 : 1) << log;
        EXPECT_NE(log.find(message), std::string::npos) << log;
        EXPECT_EQ(ReadFile(outside), "outside");
    }
    EXPECT_EQ(Look(out), (Tree{{"b", "y"}}));
    for (const ArchiveFormat format :
         {archive_write_set_format_zip, archive_write_set_format_7zip, archive_write_set_format_cpio_newc}) {
        MakeArchive(home / "archive", {{"a", "x"}, {"b/c", "y"}}, format, "cat");
        EXPECT_EQ(ExtractAfresh(), 0);
        EXPECT_EQ(Look(home / "dest"), (Tree{{"a", "x"}, {"b", "/"}, {"b/c", "y"}}));
    }
    MakeArchive(home / "archive", {{"a", "x"}}, archive_write_set_format_ar_bsd, "gzip -c");
    EXPECT_EQ(ExtractAfresh(), 0);
}

TEST_F(ExtractorTest, ReportsMissingFilesAndArguments) {
    const Rows<std::string, std::string, int, Text> cases = {
        {"", home / "dest", 1, ": Invalid Argument\n"},
        {home / "archive", "", 1, ": Invalid Argument\n"},
        {home / "none", home / "dest", 2, "total file numbers, ret: -1\n"}};
    for (const auto& [source, dest, lines, log] : cases) {
        extractor.m_source = source.c_str();
        extractor.m_dest = dest.c_str();
        EXPECT_EQ(extractor.Count(), -1);
        EXPECT_EQ(extractor.List(), -1);
        EXPECT_EQ(LogLines(": Invalid argument\n"), lines == 1 ? 2 : 0);
        EXPECT_EQ(ExtractAfresh(), -1);
        EXPECT_EQ(LogLines("ERROR"), lines);
        EXPECT_EQ(LogLines(log), 1);
    }
}

// A package from qpk is extracted completely or not at all.
TEST_F(ExtractorTest, RejectsDamagedPackages) {
    const std::string noise = Noise(30000, 1);
    std::minstd_rand random(1);
    MakeArchive(home / "archive", {{"a", noise}, {"b/c", noise + noise}, {"INFO", "x"}},
                archive_write_set_format_pax_restricted, "zstd -q --check -c");
    EXPECT_EQ(ExtractAfresh(), 0);
    const Tree whole = Look(home / "dest");
    const std::string good = ReadFile(home / "archive");
    for (std::size_t size = 0; size < good.size(); size += size + 700 < good.size() ? 701 : 7) {
        WriteFile(home / "archive", good.substr(0, size));
        EXPECT_EQ(ExtractAfresh(), -1) << "cut at " << size;
    }
    for (int flip = 0; flip < 300; ++flip) {
        std::string flipped = good;
        const std::size_t at = random() % good.size();
        flipped[at] = static_cast<char>(flipped[at] ^ (1 << flip % 8));
        WriteFile(home / "archive", flipped);
        EXPECT_TRUE(ExtractAfresh() == -1 || Look(home / "dest") == whole) << "flipped at " << at;
    }
    // Within the second header, and within the first content.
    const Rows<int, Text> cuts = {{512 + 30208 + 100, ": archive_read_next_header failed: 'Truncated tar archive"},
                                  {512 + 100, ": archive_read_extract2 failed: 'Truncated tar archive"}};
    for (const auto& [size, message] : cuts) {
        MakeArchive(home / "archive", {{"a", noise}, {"b", "x"}});
        fs::resize_file(home / "archive", size);
        EXPECT_EQ(ExtractAfresh(), -1);
        EXPECT_EQ(LogLines(message), 1);
    }
    // A warning: the locale does not have this letter.
    MakeArchive(home / "archive", {{"a", "x"}, {"\xC3\xA9", "y"}});
    setlocale(LC_CTYPE, "C");
    EXPECT_EQ(ExtractAfresh(), -1);
    setlocale(LC_CTYPE, "C.UTF-8");
    EXPECT_EQ(LogLines(": archive_read_next_header failed: 'Pathname can't be converted"), 1);
}

TEST_F(ExtractorTest, RejectsAPackageThatChangesAfterCounting) {
    const std::string content(200 << 9, 'x');
    MakeArchive(home / "archive", {{"a", content}, {"b", content}, {"c", content}, {"d", content}});
    const std::string four = ReadFile(home / "archive");
    std::string two = four;
    two.replace(2 * (512 + content.size()), 1024, 1024, 0);  // where a tar ends
    for (const int counted : {2, 4}) {
        WriteFile(home / "archive", counted == 2 ? two : four);
        QObject receiver;
        QObject::connect(Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateProgress, &receiver,
                         [&] { WriteFile(home / "archive", counted == 2 ? four : two); });
        EXPECT_EQ(ExtractAfresh(), -1);
        EXPECT_EQ(LogLines(QString("'Changed since its %1 entries were counted'\n").arg(counted)), 1);
    }
}

// Public, but not used by the launcher. The data has several blocks.
TEST_F(ExtractorTest, CopiesTheDataOfOneEntry) {
    MakeArchive(home / "archive", {{home / "copied", std::string(100000, '1')}});
    int opened = ARCHIVE_FATAL;
    const ArchiveReader reader = OpenArchive((home / "archive").c_str(), 10240, opened);
    const ArchiveWriter writer(archive_write_disk_new());
    EXPECT_EQ(extractor.copy_data(nullptr, writer.get()), -1);
    EXPECT_EQ(extractor.copy_data(reader.get(), nullptr), -1);
    archive_entry* entry = nullptr;
    ASSERT_EQ(archive_read_next_header(reader.get(), &entry), ARCHIVE_OK);
    ASSERT_EQ(archive_write_header(writer.get(), entry), ARCHIVE_OK);
    EXPECT_EQ(extractor.copy_data(reader.get(), writer.get()), 0);
    EXPECT_EQ(ReadFile(home / "copied"), std::string(100000, '1'));
}
