#!/usr/bin/env python3
"""Checks what a DLL exports: nothing but the public interface, and all of it that the record of the interface has.

usage: exports.py HEADER_DIRECTORY DLL RECORD

Public is what a header of HEADER_DIRECTORY, outside of folders named private, marks with a macro that ends in _EXPORT.
RECORD is a file of abi/, with the symbols that the library exports on Linux.
"""

import pathlib
import re
import subprocess
import sys

NAMESPACE = re.compile(r"^namespace ([\w:]+) \{", re.MULTILINE)
EXPORTED = [re.compile(pattern, re.MULTILINE) for pattern in (
    r"^class \w+_EXPORT (\w+)",
    r"^\w+_EXPORT [\w:<>]+ (\w+)\(",
    r"^extern template class \w+_EXPORT (\w+)<",
    r"^extern template \w+_EXPORT [\w:]+&\s+([\w:]+<[\w:]+>::\w+)\(",
    r"^extern \w+_EXPORT const \w+ (\w+);")]

# The tables that belong to a class, and the flag that belongs to a static object.
OF_THE_COMPILER = re.compile(r"^(vtable|typeinfo|typeinfo name|guard variable) for ")


def public_names(directory):
    """The qualified names of the classes, template instances and variables that the headers export."""
    names = set()
    for header in sorted(directory.rglob("*.h")):
        if "private" in header.relative_to(directory).parts:
            continue
        text = header.read_text(encoding="utf-8")
        for pattern in EXPORTED:
            for match in pattern.finditer(text):
                # Nothing is indented in a namespace: a brace in the first column ends it, and with a semicolon a class in it.
                around = [space[1] for space in NAMESPACE.finditer(text, 0, match.start())
                          if not re.search(r"\n\}(?!;)", text[space.end():match.start()])]
                names.add("::".join([*around, match[1]]))
    return names


def run(*command, text=None):
    return subprocess.run(command, input=text, capture_output=True, text=True, check=True).stdout


def exports_of_dll(path):
    names = run("x86_64-w64-mingw32-objdump", "-p", path).split("[Ordinal/Name Pointer] Table\n", 1)[1]
    return demangled(re.findall(r"^\t\[ *\d+\] (\S+)$", names.split("\n\n", 1)[0], re.MULTILINE))


def exports_of_record(path):
    symbols = pathlib.Path(path).read_text(encoding="utf-8").split("\nsymbols\n", 1)[1]
    return demangled(re.findall(r"\[(\w+)\]$", symbols, re.MULTILINE))


def demangled(symbols):
    return set(run("c++filt", text="\n".join(symbols)).splitlines())


def belongs(symbol, names):
    symbol = OF_THE_COMPILER.sub("", symbol)
    return any(symbol == name or symbol.startswith((name + "::", name + "<", name + "(")) for name in names)


def is_interface(symbol, names):
    """Whether users call or read it: a member of a public class, but not of a class in it, or a variable."""
    function = re.fullmatch(r"(.*?)\(.*\)( const)?", symbol)
    name = function[1] if function else symbol
    owner = re.sub("<.*>", "", name.rsplit("::", 1)[0])
    return name in names or function is not None and owner in names


def as_on_windows(symbol):
    """The same symbol where the integer of the size of a pointer is a long long."""
    return re.sub(r"(\d)ul\b", r"\1ull", re.sub(r"\blong\b(?! long)(?<!long long)", "long long", symbol))


def main(headers, dll, record):
    names = public_names(pathlib.Path(headers))
    here = exports_of_dll(dll)
    assert names and here, "nothing found to check"
    private = sorted(symbol for symbol in here if not belongs(symbol, names))
    print(f"{len(here)} symbols exported, {len(private)} of them not public", *private, sep="\n  ")

    there = {as_on_windows(symbol) for symbol in exports_of_record(record) if is_interface(symbol, names)}
    missing = sorted(there - here)
    print(f"{len(there)} parts of the interface exported on Linux, {len(missing)} of them not here", *missing, sep="\n  ")
    more = sorted(symbol for symbol in here - there if is_interface(symbol, names))
    print(f"{len(more)} exported here only", *more, sep="\n  ")
    return 1 if private or missing or not there else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
