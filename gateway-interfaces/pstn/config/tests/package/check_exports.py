#!/usr/bin/env python3
"""check_exports.py PREFIX: checks that the installed DLLs export only what the installed headers mark for export."""

import pathlib
import re
import subprocess
import sys

# What the project's own tests call beside
TESTED = {"parseNumber", "setDocumentBuilder", "advise", "getAdviceRules"}

prefix = pathlib.Path(sys.argv[1])
headers = "".join(file.read_text(encoding="utf-8") for file in (prefix / "include/velquin").rglob("*.h"))
headers = re.sub(r"^#.*", "", headers, flags=re.MULTILINE)
marked = set(re.findall(r"(?:class|struct) VELQUIN_\w*EXPORT (\w+)", headers))
marked |= set(re.findall(r"VELQUIN_\w*EXPORT (?!.*\bclass\b)[^;({]*?\b(operator\W+?|\w+)\(", headers))
used, faults = set(), []
for library in (prefix / "lib").glob("libvelquin-*.dll.a"):
    names = re.findall(r" I __imp_(\S+)", subprocess.run(["x86_64-w64-mingw32-nm", library], check=True,
                                                         stdout=subprocess.PIPE, text=True).stdout)
    plain = subprocess.run(["c++filt"], input="\n".join(names), check=True, stdout=subprocess.PIPE, text=True).stdout
    for name in plain.splitlines():
        # The part behind "-in-" owns a vtable that serves construction.
        scope = re.search(r"\bVelquin::((?:\w+::)*(?:operator\W+?(?=\()|\w+))", name.split("-in-")[-1])
        known = set(scope[1].split("::")) & (marked | TESTED) if scope else set()
        if known:
            used |= known
        else:
            faults.append(f"{library.name} exports {name}")
faults += [f"nothing of {name} is exported" for name in sorted(marked - used)]
print("\n".join(faults) or f"{len(used)} classes and functions are exported")
sys.exit(1 if faults or len(used) < 100 else 0)
