#!/usr/bin/env python3
"""Installs the build into a temporary root (DESTDIR, prefix /usr, as the Debian package does)
and checks what a Linux desktop relies on: the binary, desktop entry, metadata and icons where
the desktop looks for them, the names that tie them together, both validators, and that every
shared object the application loads while opening its screens comes from a package the .deb
pulls in.

usage: install_check.py BUILD_DIR SOURCE_DIR VERSION"""
import os
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ET

APP_ID = "org.larkwells.Book"
PNG_SIZES = (48, 64, 128, 256)

failures = []


def check(condition, message):
    if not condition:
        failures.append(message)
    return condition


def run(args, **kwargs):
    return subprocess.run(args, capture_output=True, text=True, **kwargs)


def desktop_entry(path):
    entry = {}
    with open(path, encoding="utf-8") as f:
        group = None
        for line in f:
            line = line.rstrip("\n")
            if line.startswith("["):
                group = line
            elif group == "[Desktop Entry]" and "=" in line and not line.startswith("#"):
                key, value = line.split("=", 1)
                entry[key] = value
    return entry


def png_size(path):
    with open(path, "rb") as f:
        header = f.read(24)
    if header[:8] != b"\x89PNG\r\n\x1a\n":
        return None
    return int.from_bytes(header[16:20], "big"), int.from_bytes(header[20:24], "big")


def runtime_packages(source):
    names = []
    with open(os.path.join(source, "scripts", "runtime-packages.txt"), encoding="utf-8") as f:
        for line in f:
            names += line.split("#", 1)[0].split()
    return names


def owners(paths):
    """Maps each file to the package that installed it (usr-merged paths tried both ways)."""
    variants = {}
    for path in paths:
        tries = {path, os.path.realpath(path)}
        for p in list(tries):
            tries.add(p[4:] if p.startswith("/usr/") else "/usr" + p)
        for t in tries:
            variants.setdefault(t, path)
    result = {}
    out = run(["dpkg-query", "-S"] + sorted(variants)).stdout
    for line in out.splitlines():
        package, _, file = line.partition(": ")
        if file in variants and "," not in package:
            result[variants[file]] = package.split(":")[0]
    return result


def dependency_closure(packages):
    out = run(["apt-cache", "depends", "--recurse", "--no-recommends", "--no-suggests",
               "--no-conflicts", "--no-breaks", "--no-replaces", "--no-enhances"] + sorted(packages)).stdout
    return {line.split(":")[0] for line in out.splitlines() if line and not line.startswith((" ", "<"))}


def check_loaded_objects_are_packaged(binary, source):
    """Runs the installed binary's self-test and traces every shared object it loads."""
    if not shutil.which("dpkg-query") or not shutil.which("apt-cache"):
        print("no dpkg: the loaded objects are not checked")
        return
    with tempfile.TemporaryDirectory() as trace:
        env = dict(os.environ, QT_QPA_PLATFORM="offscreen", LD_DEBUG="files",
                   LD_DEBUG_OUTPUT=os.path.join(trace, "ld"))
        selftest = run([binary, "--self-test"], env=env, timeout=240)
        if not check(selftest.returncode == 0, "the installed binary's self-test failed:\n" + selftest.stdout + selftest.stderr):
            return
        loaded = set()
        for name in os.listdir(trace):
            with open(os.path.join(trace, name), encoding="utf-8", errors="replace") as f:
                loaded |= set(re.findall(r"calling init: (/\S+)", f.read()))
    linked = set(re.findall(r"=> (/\S+)", run(["ldd", binary]).stdout))
    owner = owners(loaded | linked)
    closure = dependency_closure(set(runtime_packages(source)) | {owner[p] for p in linked if p in owner})
    for path in sorted(loaded):
        check(path in owner, f"{path} is loaded but belongs to no package")
        check(path not in owner or owner[path] in closure,
              f"{path} is loaded but its package {owner.get(path)} is not a dependency (scripts/runtime-packages.txt)")
    print(f"{len(loaded)} loaded objects, all from {len(closure)} packages the .deb pulls in")


def main():
    build, source, version = sys.argv[1:4]
    with tempfile.TemporaryDirectory() as root:
        install = run(["cmake", "--install", build, "--prefix", "/usr"], env=dict(os.environ, DESTDIR=root))
        if not check(install.returncode == 0, "cmake --install failed:\n" + install.stdout + install.stderr):
            return
        usr = os.path.join(root, "usr")
        share = os.path.join(usr, "share")
        binary = os.path.join(usr, "bin", "larkwells")
        desktop = os.path.join(share, "applications", APP_ID + ".desktop")
        metainfo = os.path.join(share, "metainfo", APP_ID + ".metainfo.xml")
        icons = os.path.join(share, "icons", "hicolor")

        check(os.access(binary, os.X_OK), "no executable usr/bin/larkwells")
        for path in (desktop, metainfo, os.path.join(icons, "scalable", "apps", APP_ID + ".svg")):
            check(os.path.isfile(path), "missing " + os.path.relpath(path, root))
        for size in PNG_SIZES:
            png = os.path.join(icons, f"{size}x{size}", "apps", APP_ID + ".png")
            if check(os.path.isfile(png), "missing " + os.path.relpath(png, root)):
                check(png_size(png) == (size, size), f"{os.path.relpath(png, root)} is {png_size(png)}")
        if failures:
            return

        # The names that tie binary, window, entry, metadata and icon together.
        entry = desktop_entry(desktop)
        check(entry.get("Exec", "").split(" ")[0] == "larkwells", "Exec is not the installed binary: " + entry.get("Exec", ""))
        check(entry.get("Icon") == APP_ID, "Icon does not name the installed icons: " + entry.get("Icon", ""))
        check(entry.get("StartupWMClass") == "larkwells", "StartupWMClass is not the window's class (the application name)")
        check("handset" in entry.get("X-KDE-FormFactor", "").split(";"), "not offered on phones (X-KDE-FormFactor)")
        with open(binary, "rb") as f:
            check(APP_ID.encode("utf-16-le") in f.read(), "the binary does not set its desktop file name to " + APP_ID)

        meta = ET.parse(metainfo).getroot()
        check(meta.findtext("id") == APP_ID, "metainfo id is not " + APP_ID)
        check(meta.findtext("launchable") == APP_ID + ".desktop", "metainfo does not launch the desktop entry")
        check(meta.findtext("provides/binary") == "larkwells", "metainfo does not provide the binary")
        check(meta.findtext("icon") == entry.get("Icon"), "metainfo and desktop entry name different icons")
        releases = [r.get("version") for r in meta.iter("release")]
        check(releases[:1] == [version], f"the newest release is {releases[:1]}, the project is {version}")
        for image in meta.iter("image"):
            shot = os.path.join(source, "packaging", "screenshots", image.text.rsplit("/", 1)[-1])
            check(os.path.isfile(shot), "no committed screenshot " + os.path.relpath(shot, source))

        answer = run([binary, "--version"], env=dict(os.environ, QT_QPA_PLATFORM="offscreen"))
        check(answer.returncode == 0 and answer.stdout.strip() == "larkwells " + version,
              "--version answered " + repr(answer.stdout + answer.stderr))

        validated = run(["desktop-file-validate", desktop])
        check(validated.returncode == 0 and not validated.stdout.strip(), "desktop-file-validate:\n" + validated.stdout + validated.stderr)
        validated = run(["appstreamcli", "validate", "--no-net", "--strict", metainfo])
        check(validated.returncode == 0, "appstreamcli validate:\n" + validated.stdout + validated.stderr)

        check_loaded_objects_are_packaged(binary, source)


if __name__ == "__main__":
    main()
    for failure in failures:
        print("FAIL:", failure)
    sys.exit(1 if failures else 0)
