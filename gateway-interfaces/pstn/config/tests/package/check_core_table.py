#!/usr/bin/env python3
"""Checks that docs/design.md names what the library takes from velquin-core, no less and no more.

usage: check_core_table.py LIBRARY SOURCES DESIGN
       LIBRARY is libvelquin-pstn-config.so, SOURCES its sources' folder, DESIGN the document

Held against each other: the functions in the table's second column and those that the library imports; the headers
that the section names and those that the sources include.
"""

import pathlib
import re
import subprocess
import sys


def imported_functions(library):
    text = subprocess.run(["nm", "-D", "--undefined-only", "-C", library], check=True, capture_output=True,
                          text=True).stdout
    return set(re.findall(r"Velquin::((?:(?!Pstn::)[\w~:]|operator \w+)+?)(?:\[abi:\w+\])?\(", text))


def main():
    library, sources, design = sys.argv[1:]
    section = re.search(r"^## What a gateway's own core brings\n(.*?)(?=^## |\Z)", pathlib.Path(design).read_text(),
                        re.MULTILINE | re.DOTALL)[1]
    columns = [line.split("|")[2] for line in section.splitlines() if line.startswith("|")]
    told = {name for column in columns for name in re.findall(r"`([\w~: ]+)`", column)}
    told_headers = set(re.findall(r"`([\w/]+[.]h)`", section))
    headers = {header for file in pathlib.Path(sources).rglob("*.*")
               for header in re.findall(r"^#include <velquin/([\w/]+[.]h)>", file.read_text(), re.MULTILINE)}
    functions = imported_functions(library)
    if not functions or not headers:
        sys.exit("nothing is imported: the check doesn't see the library")
    wrong = [f"{what} {name} {fault}"
             for what, real, said in (("function", functions, told), ("header", headers, told_headers))
             for fault, names in (("is used and not named", real - said), ("is named and not used", said - real))
             for name in sorted(names)]
    print("\n".join(wrong) or f"{len(functions)} functions, {len(headers)} headers")
    sys.exit(1 if wrong else 0)


main()
