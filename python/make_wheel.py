#!/usr/bin/env python3
"""Makes the wheel velor-*.whl of the package's sources, the library and the database, without compiler and network."""

import argparse
import os
import re
import shutil
import struct
import sys
from pathlib import Path

from write_methods import write_methods

SOURCES = Path(__file__).resolve().parent
PE_MACHINES = {0x8664: "win_amd64", 0x14C: "win32"}
ELF_MACHINES = {62: "x86_64", 183: "aarch64"}


def platform_tag(library):
    """What the library runs on, as wheels name it. Of Linux the oldest C library that has all its symbols."""
    content = library.read_bytes()
    if content.startswith(b"MZ"):
        (header,) = struct.unpack_from("<I", content, 0x3C)
        return PE_MACHINES[struct.unpack_from("<H", content, header + 4)[0]]
    if re.search(rb"\bGLIBCXX_\d", content):
        sys.exit(f"{library} needs the C++ library of the system, which no tag of a wheel promises")
    newest = max(tuple(map(int, version)) for version in re.findall(rb"\bGLIBC_(\d+)\.(\d+)", content))
    machine = ELF_MACHINES[struct.unpack_from("<H", content, 18)[0]]
    return "manylinux_{}_{}_".format(*newest) + machine


def staged(folder, library, catalogue, data, version):
    """The sources in a fresh folder together with all that is built, as the back end packs them."""
    shutil.rmtree(folder, ignore_errors=True)
    shutil.copytree(SOURCES, folder, ignore=shutil.ignore_patterns("__pycache__", "*.egg-info", "CMakeLists.txt"))
    shutil.copy(SOURCES.parent / "LICENSE", folder)
    package = folder / "src" / "velor"
    shutil.copy(library, package)
    for name in ("VELOR.DRC", "VELOR.DOP"):
        shutil.copy(data / name, package)
    write_methods(str(catalogue), package / "_methods.py")
    (package / "_version.py").write_text(f'__version__ = "{version}"\n', encoding="utf-8")
    (folder / "VERSION").write_text(version, encoding="utf-8")
    (folder / "setup.cfg").write_text(f"[bdist_wheel]\nplat_name = {platform_tag(library)}\n", encoding="utf-8")
    return folder


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--library", type=Path, required=True, help="what the wheel carries")
    parser.add_argument("--catalogue", type=Path, required=True, help="a library that runs here, for its catalogue")
    parser.add_argument("--data", type=Path, required=True, help="the folder of VELOR.DRC and VELOR.DOP")
    parser.add_argument("--version", required=True)
    parser.add_argument("--work", type=Path, required=True, help="a folder to stage in; it is emptied")
    parser.add_argument("--output", type=Path, required=True, help="the folder for the wheel")
    given = parser.parse_args()
    for old in given.output.glob("velor-*.whl"):
        old.unlink()
    folder = staged(given.work, given.library, given.catalogue, given.data, given.version)
    output = given.output.resolve()
    os.chdir(folder)
    os.environ.setdefault("SOURCE_DATE_EPOCH", "315532800")  # the same sources give the same bytes
    from setuptools import build_meta

    print(output / build_meta.build_wheel(str(output)))


main()
