// Runs qpk as its users do.
#include "e2e/harness.h"

namespace {

struct Result {
    int exit_code;
    std::string out;
    std::string err;
};

class QpkTest : public testing::Test {
  protected:
    QpkTest() { Shell("mkdir -p c/Contents/{MacOS,R} && cp /bin/true c/Contents/MacOS/quillmere-ui"); }

    // Runs a shell command in the test's directory; $Q is qpk.
    Result Shell(const std::string& line) const {
        QProcess shell;
        shell.setWorkingDirectory(QString::fromStdString(dir_.path()));
        shell.start("bash", {"-c", QString::fromStdString("Q=" QPK "; " + line)});
        shell.waitForFinished(60000);
        Result result{shell.exitCode(), shell.readAllStandardOutput().toStdString(),
                      shell.readAllStandardError().toStdString()};
        EXPECT_FALSE(Contains(result.err, "TEXT")) << result.err;
        return result;
    }

    const TempDir dir_;
};

TEST_F(QpkTest, WrongUsage) {
    const std::string range = ", which is not a number from ";
    const std::pair<std::string, std::string> lines[] = {
        {"$Q", "COMMAND: is missing: see qpk --help"},
        {"$Q pack", "pack: is not a command: see qpk --help"},
        {"$Q make -o p", "CLIENT_DIR: is missing: see qpk --help"},
        {"$Q make c", "--output: is missing: see qpk --help"},
        {"$Q make c d -o p", "d: is one operand too many: see qpk --help"},
        {"$Q make c --fast", "qpk make: has wrong arguments, Unknown option 'fast': see its --help"},
        {"$Q check", "FILE or --bundle: is missing: see qpk --help"},
        {"$Q make c -o p --minor 1", "--build: is missing: see qpk --help"},
        {"$Q make c -o p --build 1 --major '1 2'",
         "--major: has characters other than letters, digits and . + - _: remove them"},
        {"$Q make c -o p --build 12a", "--build: is 12a" + range + "0 to 2147483647: give a number in this range"},
        {"$Q make c -o p --build=-1", "--build: is -1" + range},
        {"$Q make c -o p --build 2147483648", "--build: is 2147483648" + range},
        {"$Q make c -o p --build 1 --level 9abc", "--level: is 9abc" + range + "1 to 19: give a number in this range"},
        {"$Q make c -o p --build 1 --level 20", "--level: is 20" + range},
        {"ln -s c link; $Q make c -o link/p --build 1", "link/p: is in the client's directory: choose"},
        {"cd c && $Q make . -o p --build 1", "p: is in the client's directory: choose"},
        {"$Q bundle --client c --build 1 --launcher $Q --icon i -o c", "c: is in the client's directory: choose"},
        {"SOURCE_DATE_EPOCH=5s $Q make c -o p --build 1", "SOURCE_DATE_EPOCH: is 5s" + range},
    };
    for (const auto& line : lines) {
        const Result run = Shell(line.first);
        EXPECT_EQ(run.exit_code, 2) << line.first;
        EXPECT_EQ(run.err.rfind("qpk: " + line.second, 0), 0) << line.first << "\n" << run.err;
    }
    EXPECT_FALSE(fs::exists(dir_ / "p"));
    EXPECT_EQ(Look(dir_ / "c").size(), 4u);
    EXPECT_EQ(Shell("$Q make c -o p --build 2147483647 --level 1").exit_code, 0);
}

TEST_F(QpkTest, MakeListsEveryFaultOfAClient) {
    const std::string name(224, 'n');
    const std::string path = name + "/" + name + "/" + name + "/" + name + "n";  // 900 bytes
    const std::pair<std::string, std::string> faults[] = {
        {"touch a/foo a/Foo", "a/foo: differs from a/Foo only in case"},
        {"touch a/$'e\\xcc\\x81' a/$'\\xc3\\x89'", ": differs from a/e\u0301 only in case"},
        {"mkdir contents", "contents: differs from Contents only in case"},
        {"touch $'bad\\xff'", "bad\xff: has a name that is not UTF-8"},
        {"touch $'a\\nb' && ln $'a\\nb' hard", "hard: is a hard link to a\\x0Ab"},
        {"mkdir -p " + path + " " + path + "n", path + "n: has a name longer than 255"},
        {"ln -s /etc/passwd absolute", "absolute: is a symbolic link to /etc/passwd, outside"},
        {"ln -s ../c/x up", "up: is a symbolic link to ../c/x, outside the client"},
        {"ln -s ../.. a/d/in && ln -s a/d/in/.. over", "over: is a symbolic link to a/d/in/.., outside"},
        {"ln -s circle circle", "circle: is a symbolic link to circle, part of a loop"},
        {"ln -s " + std::string(1023, 'x') + " long && ln -s " + std::string(1024, 'x') + " longer",
         "longer: is a symbolic link with an empty text or one longer than 1023"},
        {"mkfifo fifo", "fifo: is not a regular file, directory or symbolic link"},
        {"cp /bin/true suid && chmod u+s suid", "suid: has a set-user-id or set-group-id bit"},
        {"cp /bin/true sgid && chmod g+s sgid", "sgid: has a set-user-id or set-group-id bit"},
        {"chmod a-x Contents/MacOS/quillmere-ui", "quillmere-ui: is not an executable file"},
        {"echo > Contents/Resources/INFO", "INFO: has no build_version"},
    };
    Shell("mkdir -p c/a/d c/Contents/Resources");
    for (const auto& fault : faults) { ASSERT_EQ(Shell("cd c && " + fault.first).exit_code, 0) << fault.first; }
    const Result run = Shell("$Q make c -o p");
    EXPECT_EQ(run.exit_code, 1);
    for (const auto& fault : faults) { EXPECT_TRUE(Contains(run.err, fault.second)) << fault.second; }
    EXPECT_EQ(std::count(run.err.begin(), run.err.end(), '\n'), std::size(faults)) << run.err;
    EXPECT_FALSE(fs::exists(dir_ / "p"));
    EXPECT_EQ(Shell("rm -r c/* && $Q make c -o p").err,
              "qpk: Contents/MacOS/quillmere-ui: is missing: add the client's executable\n"
              "qpk: Contents/Resources/INFO: is missing: add it or use --build\n");
}

TEST_F(QpkTest, PackagesAreReproducibleAndInstall) {
    const Result made = Shell(
        "umask 077; cd c; mv Contents/MacOS/{quillmere-ui,x}; ln -s ./y Contents/MacOS/quillmere-ui;"
        "ln -s x Contents/MacOS/y; mkdir -p a/b; ln -s ../../a/./b a/b/link; touch a/X a/b/x; chmod g+s a; cd ..;"
        "head -c 300000 /dev/urandom > noise; ln noise c/noise; cp -r c d;"
        "chmod 555 c/a/b; export SOURCE_DATE_EPOCH=5;"
        "$Q make d -o 2 --build 7; $Q make c -o 1 --build 7 && cmp 1 2 && $Q list 1 && $Q list --long 1 | grep -E "
        "'/y$|/b$|noise|INFO'");
    EXPECT_EQ(made.exit_code, 0) << made.err;
    EXPECT_EQ(made.out,
              "Contents\nContents/MacOS\nContents/MacOS/quillmere-ui\nContents/MacOS/x\nContents/MacOS/y\n"
              "Contents/R\na\na/X\na/b\na/b/link\na/b/x\nnoise\nContents/Resources/INFO\n"
              "l 0777            0 (x) Contents/MacOS/y\nd 0755            0 a/b\n- 0644       300000 noise\n"
              "- 0644           78 Contents/Resources/INFO\n");
    EXPECT_EQ(Shell("$Q check 1").exit_code, 0);
    EXPECT_NE(Shell("$Q make d -o 3 --build 7 && cmp 1 3").exit_code, 0) << "the time is not used";
    EXPECT_TRUE(Contains(Shell("trap '' XFSZ; ulimit -f 10; $Q make d -o 4 --build 7").err,
                         "4: cannot be written: File too large: check"));
    EXPECT_TRUE(Contains(Shell("mkfifo 4; $Q make d -o 4 --build 7").err, "4: is not a regular file"));
    // Noise is stored uncompressed, so only the checksum shows the change.
    Shell("printf '\\x55\\xaa\\x55' | dd of=1 bs=1 seek=200000 conv=notrunc");
    EXPECT_EQ(Shell("$Q check 1").exit_code, 1);
}

TEST_F(QpkTest, CheckFindsTheFaultsOfOtherPackers) {
    const std::pair<std::string, std::string> packages[] = {
        {"tar -cf ../p Contents", "p: has no checksum"},
        {"tar -cf - Contents | zstd -q --no-check > ../p", "p: has no checksum"},
        {"tar -czf ../p Contents R", "Contents/Resources/INFO: is not the last entry"},
        {"ln Contents/MacOS/quillmere-ui z && tar -czf ../p .; rm z", ": is a hard link to ./"},
        {"tar -czPf ../p --transform s,MacOS,../MacOS, Contents", "/quillmere-ui: has .. in its path"},
        {"tar -czPf ../p --transform s,Contents/MacOS,/MacOS, Contents", "/MacOS: has an absolute path"},
        {"chmod 555 R && tar -czf ../p .; chmod 755 R", "R: is a directory that its owner cannot read, write"},
        {"ln -s $OLDPWD/out z && tar -cf ../p z && rm z && mkdir z && : > z/f && tar -rf ../p z/f; rm -r z",
         "/out, outside the client"},
        {"tar -czf ../p Contents Contents/MacOS/quillmere-ui", "quillmere-ui: appears twice"},
        {"tar -czf ../p Contents R --transform s,R$,Contents/macos/x/y,", "os: differs from Contents/MacOS only"},
        {"tar -czf ../p R --transform s,R,$(printf 'r%.0s' {1..256}),", "r: has a name longer than 255"},
        {"tar -cf - Contents | head -c 30000 > ../p", "p: is damaged after "},
        {"head -c 1000 ../good > ../p", "p: cannot be read as an archive: "},
        {"printf '#mtree\\nINFO type=file size=-5\\n' | gzip > ../p",
         "p: cannot be read as an archive: Negative size of INFO"},
        {"printf '#mtree\\na type=dir\\nb type=file size=-5\\n' | gzip > ../p",
         "p: is damaged after 1 entries: Negative"},
        {": > e && tar -czf ../p Contents/MacOS e --transform s,^e,Contents/Resources/INFO,; rm e",
         "INFO: has no build_version"},
        {"echo build_version=1x > e && sed -i '1i [Version]' e &&"
         "tar -czf ../p Contents/MacOS e --transform s,^e,Contents/Resources/INFO,; rm e",
         "INFO: has the build_version 1x, which is not a number"},
        {"cp ../good ../p", "B/Contents/Resources/INFO: has build_version 7 in the package and 8 in the bundle"},
    };
    Shell(
        "mkdir out t; $Q make c -o p --build 7; cd c && mv Contents/R . && tar -xf ../p Contents/Resources &&"
        "tar -czf ../good ./Contents/MacOS Contents/Resources; cd ..; cp -r c B; sed -i s/7/8/ B/*/*/INFO");
    EXPECT_EQ(Shell("TMPDIR=$PWD/t $Q check good; ls t").out, "good: can be installed and removed\n");
    EXPECT_TRUE(Contains(Shell("trap '' XFSZ; ulimit -f 10; TMPDIR=$PWD/t $Q check good; rmdir t").err,
                         "good: cannot be installed; the launcher would log [ERROR] extractor("));
    EXPECT_FALSE(fs::exists(dir_ / "t"));
    for (const auto& package : packages) {
        ASSERT_EQ(Shell("cd c && " + package.first).exit_code, 0) << package.first;
        const Result run = Shell("$Q check p --bundle B");
        EXPECT_EQ(run.exit_code, 1);
        EXPECT_TRUE(Contains(run.err, package.second)) << package.first << "\n" << run.err;
    }
    EXPECT_TRUE(fs::is_empty(dir_ / "out")) << "a package wrote through its link";
    EXPECT_TRUE(Contains(Shell("$Q info good --json").out, "\"build_version\": \"7\""));
    const std::string expected =
        "printf 'format: GNU tar format\nfilters: gzip\nchecksum: yes\nentries: %s\npacked: %s\nunpacked: %s\n"
        "info_is_last: yes\nmajor_version: \nminor_version: \nbuild_version: 7\nicon_overlay_version: \n' "
        "$(tar -tf good | wc -l) $(stat -c %s good) $(tar -xzOf good | wc -c)";
    EXPECT_EQ(Shell("$Q info good").out, Shell(expected).out);
    EXPECT_EQ(Shell("$Q check nothing").err,
              "qpk: nothing: cannot be read: No such file or directory: check the path and its permissions\n");
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
    const std::string plist =
        "python3 -c 'import plistlib; print(plistlib.load(open(\"Contents/Info.plist\", \"rb\")))'";
    EXPECT_TRUE(Contains(Shell("cd" + bundle + "&& " + plist).out, "'CFBundleVersion': '7'"));
    EXPECT_TRUE(Contains(ReadFile(dir_ / "d"), "\\ Drive.app/Contents/Resources/INFO:"));
    EXPECT_TRUE(Contains(ReadFile(dir_ / "d"), dir_ / "c/Contents/MacOS/quillmere-ui"));
    EXPECT_EQ(world.Run().exit_code, 0);
    EXPECT_NE(world.WaitForClient(), 0);
    EXPECT_EQ(world.Installed(), "7");
    Shell("mkdir -p P/{themes,wayland-x}; cp -r " QT_PLUGINS
          "/platforms P; sed -i s/Qpa.so.[56]/Qpa.so.9/ P/*/libqxcb.so");
    EXPECT_TRUE(
        Contains(Shell(line + "b --copy-plugins --plugins P").err, "XcbQpa.so.9 => not found: install the library"));
    EXPECT_TRUE(Contains(Shell(line + "b --plugins none").err, "none: cannot be read: No such file"));
    EXPECT_EQ(Shell(line + "b --plugins P && ls b/Contents/Frameworks/plugins/").out, "platforms\nwayland-x\n");
}

}  // namespace
