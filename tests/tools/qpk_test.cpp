// The makers' tool, driven as its users drive it.
#include "e2e/harness.h"

namespace fs = std::filesystem;

namespace {

struct Result {
    int exit_code;
    std::string out;
    std::string err;
};

class QpkTest : public testing::Test {
  protected:
    QpkTest() { Shell("mkdir -p c/Contents/{MacOS,R} && cp /bin/true c/Contents/MacOS/quillmere-ui"); }

    // Runs a line of the shell in the test's directory; $Q is the tool.
    Result Shell(const std::string& line) const {
        QProcess shell;
        shell.setWorkingDirectory(QString::fromStdString(dir_.path()));
        shell.start("bash", {"-c", QString::fromStdString("Q=" QPK "; " + line)});
        shell.waitForFinished(60000);
        return {shell.exitCode(), shell.readAllStandardOutput().toStdString(),
                shell.readAllStandardError().toStdString()};
    }

    const TempDir dir_;
};

TEST_F(QpkTest, MakeListsEveryFaultOfAClient) {
    const std::string n(240, 'n');
    const std::pair<std::string, std::string> faults[] = {
        {"touch a/foo a/Foo", "a/foo: differs from a/Foo only by"},
        {"touch a/$'e\\xcc\\x81' a/$'\\xc3\\x89'", ": differs from a/e\u0301 only by"},
        {"mkdir contents", "contents: differs from Contents only by"},
        {"touch $'bad\\xff'", "bad\xff: name is not UTF-8"},
        {"touch $'a\\nb' && ln $'a\\nb' hard", "hard: hard link to a\\x0Ab"},
        {"mkdir -p " + n + "/" + n + "/" + n + "/" + n, "path longer than 900"},
        {"ln -s /etc/passwd absolute", "absolute: link to /etc/passwd leaves the client"},
        {"ln -s ../c/x up", "up: link to ../c/x leaves the client"},
        {"ln -s ../.. a/d/in && ln -s a/d/in/.. over", "over: link to a/d/in/.. leaves"},
        {"ln -s circle circle", "circle: link to circle goes in a circle"},
        {"mkfifo fifo", "fifo: is no file, directory or symbolic link"},
        {"cp /bin/true suid && chmod u+s suid", "suid: set-user-id or set-group-id bit"},
        {"chmod a-x Contents/MacOS/quillmere-ui", "quillmere-ui: is no executable file"},
        {"echo > Contents/Resources/INFO", "INFO: has no build_version"},
    };
    Shell("mkdir -p c/a/d c/Contents/Resources");
    for (const auto& fault : faults) { ASSERT_EQ(Shell("cd c && " + fault.first).exit_code, 0) << fault.first; }
    const Result run = Shell("$Q make c -o p");
    EXPECT_EQ(run.exit_code, 1);
    for (const auto& fault : faults) { EXPECT_TRUE(Contains(run.err, fault.second)) << fault.second; }
    EXPECT_EQ(std::count(run.err.begin(), run.err.end(), '\n'), std::size(faults)) << run.err;
    EXPECT_FALSE(fs::exists(dir_ / "p"));
    for (const std::string version : {"12a", "-1", "+1", "2147483648", "''"}) {
        EXPECT_EQ(Shell("$Q make c -o p --build " + version).exit_code, 2) << version;
    }
    EXPECT_TRUE(Contains(Shell("rm -r c/* && $Q make c -o p").err, "INFO: is missing"));
}

TEST_F(QpkTest, PackagesAreReproducibleAndInstall) {
    const Result made = Shell(
        "umask 077; cd c; mv Contents/MacOS/{quillmere-ui,x}; ln -s ./y Contents/MacOS/quillmere-ui;"
        "ln -s x Contents/MacOS/y; mkdir -p a/b; ln -s ../../a/./b a/b/link; touch a/X a/b/x; chmod g+s a; cd ..;"
        "head -c 300000 /dev/urandom > noise; ln noise c/noise; cp -r c d;"
        "chmod 555 c/a/b; export SOURCE_DATE_EPOCH=5;"
        "$Q make d -o 2 --build 7; $Q make c -o 1 --build 7 && cmp 1 2 && $Q list 1");
    EXPECT_EQ(made.exit_code, 0) << made.err;
    EXPECT_EQ(made.out,
              "Contents\nContents/MacOS\nContents/MacOS/quillmere-ui\nContents/MacOS/x\nContents/MacOS/y\n"
              "Contents/R\na\na/X\na/b\na/b/link\na/b/x\nnoise\nContents/Resources/INFO\n");
    EXPECT_EQ(Shell("$Q check 1").exit_code, 0);
    EXPECT_NE(Shell("$Q make d -o 3 --build 7 && cmp 1 3").exit_code, 0) << "the time is not used";
    EXPECT_TRUE(Contains(Shell("trap '' XFSZ; ulimit -f 10; $Q make d -o 4 --build 7").err, "4: File too large"));
    EXPECT_TRUE(Contains(Shell("mkfifo 4; $Q make d -o 4 --build 7").err, "4: is no regular file"));
    // Noise is stored as it is, and nothing but the checksum tells that it has changed.
    Shell("printf '\\x55\\xaa\\x55' | dd of=1 bs=1 seek=200000 conv=notrunc");
    EXPECT_EQ(Shell("$Q check 1").exit_code, 1);
}

TEST_F(QpkTest, CheckTellsWhatOtherPackersDoWrong) {
    const std::pair<std::string, std::string> packages[] = {
        {"tar -cf ../p Contents", "has no checksum"},
        {"tar -cf - Contents | zstd -q --no-check > ../p", "has no checksum"},
        {"tar -czf ../p Contents R", "INFO: is not the last entry"},
        {"ln Contents/MacOS/quillmere-ui z && tar -czf ../p .; rm z", "does not install"},
        {"tar -czPf ../p --transform s,MacOS,../MacOS, Contents", "has \"..\" in its path"},
        {"tar -czPf ../p --transform s,Contents/MacOS,/MacOS, Contents", "/MacOS: absolute path"},
        {"chmod 555 R && tar -czf ../p .; chmod 755 R", "R: directory that its owner cannot"},
        {"ln -s /tmp z && tar -czf ../p .; rm z", "was not unpacked"},
        {"tar -czf ../p Contents Contents/MacOS/quillmere-ui", "quillmere-ui: comes twice"},
        {"tar -czf ../p Contents R --transform s,R$,contents/x,", "contents: differs from Contents"},
        {"tar -czf ../p R --transform s,R,$(printf 'r%.0s' {1..256}),", "name is longer than 255"},
        {"tar -cf - Contents | head -c 30000 > ../p", "damaged after"},
        {"head -c 1000 ../good > ../p", "would never install"},
        {"cp ../good ../p", "is 7 in the package and 8 in the bundle: every start would be"},
    };
    Shell(
        "$Q make c -o p --build 7; cd c && mv Contents/R . && tar -xf ../p Contents/Resources &&"
        "tar -czf ../good ./Contents/MacOS Contents/Resources; cd ..; cp -r c B; sed -i s/7/8/ B/*/*/INFO");
    EXPECT_EQ(Shell("$Q check good").exit_code, 0);
    for (const auto& package : packages) {
        ASSERT_EQ(Shell("cd c && " + package.first).exit_code, 0) << package.first;
        const Result run = Shell("$Q check p --bundle B");
        EXPECT_EQ(run.exit_code, 1);
        EXPECT_TRUE(Contains(run.err, package.second)) << package.first << "\n" << run.err;
    }
    EXPECT_TRUE(Contains(Shell("$Q info good --json").out, "\"build_version\": \"7\""));
    EXPECT_EQ(Shell("$Q check nothing").exit_code, 3);
}

TEST_F(QpkTest, BundleInstallsItsClient) {
    World world;
    const std::string bundle = " '" + world.Bundle() + "' ";
    const std::string line =
        "cp " SAMPLE_CLIENT " c/Contents/MacOS/; $Q bundle --client c --build 7 --launcher " LAUNCHER " --icon " ICON
        " --depfile d -o ";
    ASSERT_EQ(Shell(line + bundle + "--copy-plugins").exit_code, 0);
    EXPECT_EQ(Shell("$Q check --bundle" + bundle).exit_code, 0);
    EXPECT_EQ(Shell("find" + bundle + "-name '*.so' -o -name '*.png' | wc -l").out, "3\n");
    EXPECT_TRUE(Contains(ReadFile(world.Bundle() + "/Contents/Info.plist"), "<string>7</string>"));
    EXPECT_TRUE(Contains(ReadFile(dir_ / "d"), "\\ Drive.app/Contents/Resources/INFO:"));
    EXPECT_TRUE(Contains(ReadFile(dir_ / "d"), dir_ / "c/Contents/MacOS/quillmere-ui"));
    EXPECT_EQ(world.Launch().exit_code, 0);
    EXPECT_NE(world.WaitForClient(), 0);
    EXPECT_EQ(world.Installed(), "7");
    Shell("mkdir -p P/{themes,wayland-x}; cp -r " QT_PLUGINS
          "/platforms P; sed -i s/Qpa.so.5/Qpa.so.9/ P/*/libqxcb.so");
    EXPECT_TRUE(Contains(Shell(line + "b --copy-plugins --plugins P").err, "XcbQpa.so.9 => not found"));
    EXPECT_EQ(Shell(line + "b --plugins P && ls b/Contents/Frameworks/plugins/").out, "platforms\nwayland-x\n");
}

}  // namespace
