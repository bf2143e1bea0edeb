#!/usr/bin/env python3
"""Checks that all functions link which the installed headers declare.

usage: check_functions.py COMPILER PREFIX FOLDER
       COMPILER is g++, also one for Windows, PREFIX where the library is installed, FOLDER where files may be written

One object includes all headers and keeps their inline functions. A second one names every other function that they
declare, and the linker has to find each in the object or in the libraries. Functions of classes, nested and private
ones too, are taken from debug information, free functions from the Ada specification that g++ writes. Templates are
not looked at, nor what is deleted, defaulted or pure.
"""

import pathlib
import re
import shutil
import subprocess
import sys

OURS = re.compile(r"_ZN[VKRO]*7Velquin")


def run(*command, **arguments):
    return subprocess.run([str(word) for word in command], check=True, **arguments)


def member_functions(objdump, file):
    """Linkage names of what classes declare, as objdump prints it: a line for each entry and for each attribute."""
    names = set()
    entry, attributes = "", {}
    text = run(objdump, "--dwarf=info", "--wide", file, stdout=subprocess.PIPE, text=True).stdout
    for line in text.splitlines() + [" <0><0>: Abbrev Number: 0"]:
        if match := re.match(r" <\d+><[0-9a-f]+>: Abbrev Number: \d+(?: \(DW_TAG_(\w+)\))?", line):
            if entry == "subprogram" and not attributes.keys() & {"deleted", "defaulted", "artificial"}:
                # A constructor or destructor that is declared has the name of none of those that are made of it.
                names.add(re.sub(r"([CD])4E", r"\g<1>1E", attributes.get("linkage_name", "")))
            entry, attributes = match[1], {}
        elif match := re.match(r" +<[0-9a-f]+> +DW_AT_(\w+) *:.*?([^ ]*) *$", line):
            attributes[match[1]] = match[2]
    return names


def free_functions(folder):
    """Linkage names of what stands in a namespace: such functions are indented least. Friends are written so too."""
    pattern = re.compile(r'-- (.*):(\d+)\n   with Import.*\n.*\n *External_Name => "(\w+)"')
    return {name for file in folder.glob("velquin_*.ads")
            for header, line, name in pattern.findall(file.read_text())
            if "friend " not in pathlib.Path(header).read_text().splitlines()[int(line) - 1]}


def pure_functions(headers):
    """What the pure functions are called: class and name."""
    names = set()
    for header in headers:
        text = header.read_text()
        for match in re.finditer(r"^ +virtual [^;{]*?(\w+)\([^;{]*= 0;", text, re.MULTILINE):
            scope = re.findall(r"^(?:class|struct) (?:\w+_EXPORT )?(\w+)", text[: match.start()], re.MULTILINE)[-1]
            names.add(f"::{scope}::{match[1]}")
    return tuple(names)


def main():
    compiler, prefix, folder = sys.argv[1], *(pathlib.Path(name).resolve() for name in sys.argv[2:])
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)
    headers = sorted((prefix / "include/velquin").rglob("*.h"))
    (folder / "all.cpp").write_text("".join(f'#include "{header}"\n' for header in headers))
    run(compiler, "-std=c++20", "-g", "-gdwarf-5", "-fno-eliminate-unused-debug-types", "-femit-class-debug-always",
        "-fkeep-inline-functions", "-fdump-ada-spec", "-I", prefix / "include", "-c", "all.cpp", cwd=folder)
    objdump = run(compiler, "-print-prog-name=objdump", stdout=subprocess.PIPE, text=True).stdout.strip()
    members, free = member_functions(objdump, folder / "all.o"), free_functions(folder)
    pure = pure_functions(headers)
    names = sorted(name for name in members | free if OURS.match(name))
    plain = run("c++filt", input="\n".join(names), stdout=subprocess.PIPE, text=True).stdout.splitlines()
    names = [name for name, (called, *arguments) in zip(names, (text.split("(", 1) for text in plain))
             if arguments and not re.search(r"\w<\w", called) and not called.endswith(pure)]
    if len(names) < 1000 or free.isdisjoint(names) or members.isdisjoint(names):
        sys.exit(f"only {len(names)} functions were found: the headers are not read right")
    (folder / "names.cpp").write_text(
        'extern "C" {\n' + "".join(f"void {name}();\n" for name in names) + "}\n"
        "void ( *g_aFunctions[] )() = { " + ", ".join(names) + " };\nint main() {}\n")
    libraries = next(file for ending in ("so", "dll.a") for file in prefix.glob(f"lib*/**/libvelquin-core.{ending}")).parent
    run(compiler, "-w", "names.cpp", "all.o", "-L", libraries, f"-Wl,-rpath,{libraries}", "-lvelquin-pstn-config",
        "-lvelquin-core", "-o", "functions", cwd=folder)
    if (folder / "functions").exists():  # not functions.exe, which needs its DLLs
        run(folder / "functions")
    print(f"{len(names)} functions of {len(headers)} headers link")


main()
