#!/usr/bin/env python3
"""check_tool.py PREFIX VERSION SOURCES [LAUNCHER]: the installed tool works from where it stands, and has what its help
names. The launcher runs programs of another system."""

import pathlib
import re
import subprocess
import sys

prefix, version, sources = pathlib.Path(sys.argv[1]), sys.argv[2], pathlib.Path(sys.argv[3])
program = [*sys.argv[4:], *(prefix / "bin").glob("pstnconfig*")]
faults = []


def run(*arguments):
    result = subprocess.run([*program, *arguments], cwd="/", stdout=subprocess.PIPE,
                            stderr=subprocess.STDOUT, encoding="utf-8")
    faults.extend([f"{arguments}: {result.stdout}"] if result.returncode else [])
    return result.stdout


examples = sorted((prefix / "share/doc/pstnconfig/examples").glob("*.xml"))
if [file.name for file in examples] != sorted(file.name for file in (sources / "examples").glob("*.xml")):
    faults.append(f"examples: {examples}")
run("check", *examples)
for file in examples:
    schema = re.search(r'<\?xml-model href="(.*?)"', file.read_text(encoding="utf-8"))[1]
    faults += [] if (file.parent / schema).exists() else [f"{file.name} names the schema {schema}"]

help_text = "".join(run(*verb, "--help") for verb in ([], ["check"], ["show"], ["diff"], ["map"]))
named = re.findall(r"share/[\w/.-]*\w", " ".join(help_text.split()))
faults += [f"--help names {file}" for file in named if not (prefix / file).exists()]
for page in prefix.glob("share/doc/pstnconfig/docs/*.md"):
    links = re.findall(r"\]\(([^:)#]+)", page.read_text(encoding="utf-8"))
    named += links
    faults += [f"{page.name} links to {link}" for link in links if not (page.parent / link).exists()]
if len(named) < 3:
    faults.append(f"only these names were found: {named}")

# The version stands in CMakeLists.txt; the other places agree.
if not re.fullmatch(rf"pstnconfig {version}\nlibxml2 \d+\.\d+\.\d+\n", run("--version")):
    faults.append(f"--version: {run('--version')}")
for file, pattern in (("CHANGELOG.md", r"^## \[?([\d.]+)"), ("debian/changelog", r"^\S+ \(([\d.]+)\)"),
                      ("README.md", r"velquin-pstn-config-([\d.]+)-Windows")):
    found = re.search(pattern, (sources / file).read_text(encoding="utf-8"), re.M)
    if not found or found[1] != version:
        faults.append(f"the first version in {file} is {found and found[1]}, not {version}")
sys.exit("\n".join(faults) or 0)
