"""Trees of files, packages and bundles."""
import io
import os
import pathlib
import random
import shutil
import subprocess
import tarfile

EXECUTABLE = "Contents/MacOS/quillmere-ui"
INFO = "Contents/Resources/INFO"
VERSION = "[Version]\nmajor_version=1\nminor_version=0\nbuild_version=2\nicon_overlay_version=1\n"
FORMS = {
    "zst": ("--format=pax", "--use-compress-program=zstd -9 --zstd=wlog=21 --check"),
    "gz": ("--format=pax", "--gzip"),
    "zip": ("--format=zip",),
    "xz": ("--format=pax", "--xz", "--options=xz:threads=2"),
}


def remove(path):
    subprocess.run(["rm", "-rf", path], check=True)


def once(path, make):
    """Calls `make` for a new directory, and renames it to `path` when it is complete."""
    if not path.exists():
        part = path.with_name(path.name + ".part")
        remove(part)
        part.mkdir(parents=True)
        make(part)
        part.rename(path)
    return path


def choose(files, size, source="/usr"):
    """Files of this machine, with this number and size, always the same ones."""
    found = []
    for directory, names, leaves in os.walk(source):
        names.sort()
        found += [os.path.join(directory, leaf) for leaf in sorted(leaves)]
    random.Random(20240229).shuffle(found)
    chosen, total = [], 0
    for path in found:
        status = os.lstat(path)
        fits = total + status.st_size <= size * (len(chosen) + 1) / files + size / 50
        if os.path.isfile(path) and not os.path.islink(path) and fits and path.isprintable():
            chosen.append(path)
            total += status.st_size
        if len(chosen) == files:
            return chosen
    raise SystemExit(f"bench: {source} has no {files} files that fit into {size} bytes")


def client(tree):
    """The files of every client, which exits immediately."""
    for path in (EXECUTABLE, INFO):
        (tree / path).parent.mkdir(parents=True, exist_ok=True)
    shutil.copy("/bin/true", tree / EXECUTABLE)
    (tree / INFO).write_text(VERSION)


def real_client(tree, files=10000, size=300_000_000):
    client(tree)
    for path in choose(files, size):
        target = tree / "Contents/Files" / path.lstrip("/")
        target.parent.mkdir(parents=True, exist_ok=True)
        shutil.copyfile(path, target)


def small_files(tree, files, bytes_each=1000, in_one=100):
    for number in range(files):
        directory = tree / f"directory{number // in_one}"
        directory.mkdir(exist_ok=True)
        (directory / f"file{number}").write_bytes(bytes([number % 256]) * bytes_each)


def pack(tree, package, form):
    """A package of a client's tree, with INFO as the last entry."""
    entries = sorted(path.relative_to(tree).as_posix() for path in tree.rglob("*"))
    entries.remove(INFO)
    part = package.with_name("part")
    subprocess.run(["bsdtar", "-c", "-n", "-f", part, *FORMS[form], "-C", tree, "-T", "-"], check=True,
                   input="\n".join(entries + [INFO, ""]).encode())
    part.rename(package)
    return package


def pack_entries(package, names):
    """A package of a client with empty files of these names."""
    with open(package, "wb") as out:
        zstd = subprocess.Popen(["zstd", "-q", "-c"], stdin=subprocess.PIPE, stdout=out)
        with tarfile.open(fileobj=zstd.stdin, mode="w|", format=tarfile.PAX_FORMAT) as tar:
            tar.add("/bin/true", EXECUTABLE)
            for name in names:
                tar.addfile(tarfile.TarInfo(name))
            entry = tarfile.TarInfo(INFO)
            entry.size = len(VERSION)
            tar.addfile(entry, io.BytesIO(VERSION.encode()))
        zstd.stdin.close()
        if zstd.wait() != 0:
            raise SystemExit("bench: zstd failed")
    return package


def bundle(app, launcher, plugins, icon, package=None):
    """A bundle with the package. Result: its launcher."""
    contents = pathlib.Path(app) / "Contents"
    remove(app)
    for directory in ("MacOS", "Frameworks/plugins", "Resources/package", "Resources/images"):
        (contents / directory).mkdir(parents=True)
    shutil.copy(launcher, contents / "MacOS/launcher")
    shutil.copy(icon, contents / "Resources/images/ico_72_quillmere.png")
    (contents / "Frameworks/plugins/platforms").symlink_to(pathlib.Path(plugins) / "platforms")
    (contents / "Resources/INFO").write_text(VERSION)
    if package:
        (contents / "Resources/package/quillmere.qpk").symlink_to(os.path.abspath(package))
    return str(contents / "MacOS/launcher")
