"""Reads the interface of the libraries: their public headers as a compiler takes them, and the symbols they export.

An interface is a dictionary of blocks of lines, title -> [line]. A block is a class, an enumeration, or what stands in
a namespace; its lines are what a program may rely on, in an order that does not depend on that in the header.
"""

import json
import pathlib
import re
import shlex
import subprocess
import sys

sys.path.append("/usr/lib/python3/dist-packages")  # for a Python that is not the distribution's
from clang.cindex import (AccessSpecifier, AvailabilityKind, CursorKind,  # noqa: E402
                          ExceptionSpecificationKind, Index)

# The library of each folder of headers, the innermost folder first.
FOLDERS = {"platform/batterydata": "CLBatteryData", "platform": "CLDataStorage", "src": "CLConfigUI"}
ROOTS = ("src", "platform")

CLASSES = (CursorKind.CLASS_DECL, CursorKind.STRUCT_DECL, CursorKind.CLASS_TEMPLATE)
WITHOUT_RESULT = (CursorKind.CONSTRUCTOR, CursorKind.DESTRUCTOR, CursorKind.CONVERSION_FUNCTION)
FUNCTIONS = (CursorKind.FUNCTION_DECL, CursorKind.FUNCTION_TEMPLATE, CursorKind.CXX_METHOD, *WITHOUT_RESULT)
# What tells a program nothing by itself.
PASSED_OVER = (CursorKind.CXX_ACCESS_SPEC_DECL, CursorKind.FRIEND_DECL, CursorKind.VISIBILITY_ATTR,
               CursorKind.CXX_FINAL_ATTR, CursorKind.STATIC_ASSERT, CursorKind.TEMPLATE_TYPE_PARAMETER,
               CursorKind.TYPE_REF, CursorKind.TEMPLATE_REF, CursorKind.NAMESPACE_REF)


def fail(message):
    raise SystemExit(message)


def unknown(cursor):
    fail(f"{cursor.location.file}:{cursor.location.line}: abi/interface.py does not know {cursor.kind.name}")


# What the compiler makes of the headers


def public_headers(folder):
    return sorted(path for path in folder.rglob("*.h") if "private" not in path.relative_to(folder).parts)


def compiler_arguments(build_dir, source):
    """Folders, definitions and the language that the compiler is told for SOURCE."""
    commands = json.loads((build_dir / "compile_commands.json").read_text(encoding="utf-8"))
    command = next((entry["command"] for entry in commands if entry["file"] == str(source)), None)
    words = shlex.split(command or fail(f"{build_dir}/compile_commands.json does not name {source}"))
    result = []
    for word, following in zip(words, [*words[1:], ""]):
        if word == "-isystem":
            result += [word, following]
        elif re.match("-[DI]|-std=", word):
            result.append(word)
    return result


def parse(source_dir, build_dir):
    """One source that includes every public header."""
    probe = "".join(f'#include "{header}"\n' for root in ROOTS for header in public_headers(source_dir / root))
    arguments = compiler_arguments(build_dir, source_dir / "src/config/UIConfig.cpp")
    unit = Index.create().parse("interface.cpp", [*arguments, "-w", "-DCLCONFIGUI_LEAN_INCLUDES"],
                                [("interface.cpp", probe)])
    errors = [str(diagnostic) for diagnostic in unit.diagnostics if diagnostic.severity >= diagnostic.Error]
    if errors:
        fail("\n".join(["clang cannot read the public headers:", *errors]))
    return unit


# How things are written


def qualified(cursor):
    """The full name of a class or a namespace, nothing for what is outside of them."""
    if cursor.kind == CursorKind.TRANSLATION_UNIT:
        return ""
    if cursor.kind in CLASSES and cursor.kind != CursorKind.CLASS_TEMPLATE:
        return type_name(cursor.type)
    outer = qualified(cursor.semantic_parent)
    return f"{outer}::{cursor.displayname}" if outer else cursor.displayname


def in_template(cursor):
    return CursorKind.FUNCTION_TEMPLATE == cursor.kind or cursor.semantic_parent.kind == CursorKind.CLASS_TEMPLATE


def type_name(type_, as_written=False):
    text = type_.spelling if as_written else type_.get_canonical().spelling
    return re.sub(r" ([&*])", r"\1", text).replace("std::basic_string<char>", "std::string")


def call(cursor):
    """Name, parameters and const of a function: what an overriding function has in common with the overridden one."""
    if cursor.kind == CursorKind.FUNCTION_TEMPLATE:
        text = re.sub(r" ([&*])", r"\1", cursor.displayname)
    else:
        parameters = (type_name(argument.type, in_template(cursor)) for argument in cursor.get_arguments())
        text = f"{cursor.spelling}({', '.join(parameters)})"
    return text + (" const" if cursor.is_const_method() else "")


def function(cursor):
    text = call(cursor)
    if cursor.kind not in WITHOUT_RESULT:
        text = f"{type_name(cursor.result_type, in_template(cursor))} {text}"
    if cursor.is_static_method():
        text = f"static {text}"
    # Of destructors and defaulted functions the compiler finds it out by itself, and not always.
    if (cursor.exception_specification_kind == ExceptionSpecificationKind.BASIC_NOEXCEPT
            and cursor.kind != CursorKind.DESTRUCTOR and not cursor.is_default_method()):
        text += " noexcept"
    if cursor.availability == AvailabilityKind.NOT_AVAILABLE:
        text += " = delete"
    elif cursor.is_default_method():
        text += " = default"
    elif cursor.is_pure_virtual_method():
        text += " = 0"
    return with_access(cursor, text)


def variable(cursor):
    return with_access(cursor, f"{type_name(cursor.type, in_template(cursor))} {cursor.spelling}")


def alias(cursor):
    return with_access(cursor, f"using {cursor.spelling} = {type_name(cursor.underlying_typedef_type)}")


def with_access(cursor, text):
    access = cursor.access_specifier
    return text if access in (AccessSpecifier.PUBLIC, AccessSpecifier.INVALID) else f"{access.name.lower()} {text}"


# Classes and enumerations


def virtual_places(cursor):
    """The places of virtual functions in the table of a class: call -> first place, and the number of places."""
    places, count = {}, 0
    for child in cursor.get_children():
        if child.kind == CursorKind.CXX_BASE_SPECIFIER:
            of_base, count_of_base = virtual_places(child.type.get_declaration().get_definition())
            if count and count_of_base:
                fail(f"{cursor.spelling} has two bases with virtual functions: abi/interface.py knows one")
            places.update(of_base)
            count += count_of_base
        elif child.kind in FUNCTIONS and child.is_virtual_method():
            is_destructor = child.kind == CursorKind.DESTRUCTOR
            name = "~" if is_destructor else call(child)
            if name not in places:
                places[name] = count
                count += 2 if is_destructor else 1  # one that destroys, one that frees as well
    return places, count


def data_member(cursor):
    byte, bit = divmod(cursor.get_field_offsetof(), 8)
    bits = f" bit {bit}, {cursor.get_bitfield_width()} bits" if cursor.is_bitfield() else ""
    return f"at {byte:3}{bits}: {variable(cursor)}"


def is_for_the_class_alone(cursor, header):
    """Whether a function is private, and nothing in the header calls it."""
    if cursor.access_specifier != AccessSpecifier.PRIVATE or cursor.is_virtual_method():
        return False
    code = re.sub(r"//.*", "", header.read_text(encoding="utf-8"))
    return len(re.findall(rf"\b{re.escape(cursor.spelling)}\b", code)) == 1


def class_lines(cursor, header):
    is_template = cursor.kind == CursorKind.CLASS_TEMPLATE
    places = {} if is_template else virtual_places(cursor)[0]
    layout, virtual, others = [], {}, []
    if cursor.type.get_size() >= 0:  # not of a template, nor in one
        layout.append(f"size {cursor.type.get_size()}, aligned to {cursor.type.get_align()}")
    for child in cursor.get_children():
        if child.kind == CursorKind.CXX_BASE_SPECIFIER:
            layout.append(f"base {with_access(child, type_name(child.type, is_template))}")
        elif child.kind == CursorKind.FIELD_DECL:
            layout.append(variable(child) if is_template else data_member(child))
        elif child.kind in FUNCTIONS:
            if child.is_virtual_method() and not is_template:
                place = places["~" if child.kind == CursorKind.DESTRUCTOR else call(child)]
                virtual[place] = f"virtual {place:3}: {function(child)}"
            elif not is_for_the_class_alone(child, header):
                others.append((call(child), ("virtual " if child.is_virtual_method() else "") + function(child)))
        elif child.kind == CursorKind.VAR_DECL:
            if child.access_specifier != AccessSpecifier.PRIVATE:
                others.append((child.spelling, f"static {variable(child)}"))
        elif child.kind == CursorKind.TYPE_ALIAS_DECL:
            others.append((child.spelling, alias(child)))
        elif child.kind == CursorKind.USING_DECLARATION:
            others.append((child.spelling, f"using {child.spelling.split('<')[0]}"))
        elif child.kind not in (*CLASSES, CursorKind.ENUM_DECL, *PASSED_OVER):
            unknown(child)
    return [*layout, *(virtual[place] for place in sorted(virtual)), *(text for _, text in sorted(others))]


def enumeration(cursor):
    outer = qualified(cursor.semantic_parent)
    name = "(without a name)" if cursor.is_anonymous() else cursor.spelling
    scoped = "class " if cursor.is_scoped_enum() else ""
    title = f"enum {scoped}{outer}{'::' if outer else ''}{name} : {type_name(cursor.enum_type)}"
    values = [child for child in cursor.get_children() if child.kind == CursorKind.ENUM_CONSTANT_DECL]
    return title, [f"{value.spelling} = {value.enum_value}" for value in sorted(values, key=lambda it: it.enum_value)]


# Symbols


def symbols_of(cursor):
    """What the linker calls a function or a variable: constructors and destructors have several names."""
    name = cursor.mangled_name
    if cursor.kind == CursorKind.CONSTRUCTOR:
        return [re.sub(rf"(?<={cursor.spelling})C1", f"C{variant}", name) for variant in "12"]
    if cursor.kind == CursorKind.DESTRUCTOR:
        return [re.sub(rf"(?<={cursor.spelling[1:]})D1", f"D{variant}", name) for variant in "012"]
    return [name]


def exported_symbols(library):
    """Symbol -> its name in the source, whether it may be defined elsewhere as well, and its size."""
    listing = subprocess.run(["nm", "--dynamic", "--defined-only", "--format=posix", library],
                             capture_output=True, text=True, check=True).stdout
    fields = [line.split() for line in listing.splitlines()]
    names = subprocess.run(["c++filt"], input="\n".join(field[0] for field in fields), capture_output=True, text=True,
                           check=True).stdout
    names = re.sub(r"std::__cxx11::basic_string<char, std::char_traits<char>, std::allocator<char> ?>", "std::string",
                   names)
    return {symbol: (name, kind in "WVu", int(size[0], 16) if size else 0)
            for (symbol, kind, _, *size), name in zip(fields, names.splitlines())}


class Symbols:
    """The symbols that the headers speak of."""

    def __init__(self):
        self.declared = set()
        self.for_classes_alone = set()
        self.places = {}  # class -> places in the table of its virtual functions
        self.templates = []  # how the names of their instances begin
        self.opaque = []  # the same of classes that a header names without saying what they are

    def add(self, cursor, header):
        self.declared.update(symbols_of(cursor))
        if cursor.kind in FUNCTIONS and is_for_the_class_alone(cursor, header):
            self.for_classes_alone.update(symbols_of(cursor))

    def exported_by(self, library):
        lines = []
        for symbol, (name, is_weak, size) in exported_symbols(library).items():
            if symbol in ("__bss_start", "_edata", "_end"):
                continue  # of the linker
            table = re.fullmatch("(vtable|typeinfo|typeinfo name|guard variable) for (.*)", name)
            if table and table[1] not in ("vtable", "typeinfo"):
                is_ours = False  # nobody outside of the library asks for it
            elif table:
                of = table[2]
                if table[1] == "vtable" and of in self.places and size != 8 * (self.places[of] + 2):
                    fail(f"{library}: the {name} has {size // 8 - 2} places, in its header there are {self.places[of]}")
                is_ours = of in self.places or of.startswith(tuple(self.templates))
            elif is_weak:
                # Of a template, but nothing that stands in a function.
                is_ours = name.startswith(tuple(self.templates)) and "()::" not in name
            else:
                is_opaque = name.startswith(tuple(self.opaque))
                if symbol not in self.declared and not is_opaque:
                    fail(f"{library} exports {name}, which is in no public header")
                is_ours = not is_opaque and symbol not in self.for_classes_alone
            if is_ours:
                lines.append(f"{name} [{symbol}]")
        return sorted(lines)


# The whole


class Headers:
    """What stands in the public headers: an interface for each library, and the symbols of all of them."""

    def __init__(self, source_dir, unit):
        self.folders = {source_dir / folder: library for folder, library in FOLDERS.items()}
        self.interfaces = {library: {"headers": []} for library in FOLDERS.values()}
        self.symbols = Symbols()
        for root in ROOTS:
            for header in public_headers(source_dir / root):
                self.interfaces[self.owner_of(header)]["headers"].append(str(header.relative_to(source_dir / root)))
        self.read_namespace(unit.cursor)
        for interface in self.interfaces.values():
            for title, lines in interface.items():
                if isinstance(lines, set):
                    interface[title] = [text for _, text in sorted(lines)]

    def owner_of(self, path):
        return next((library for folder, library in self.folders.items() if path.is_relative_to(folder)), None)

    def read_namespace(self, cursor):
        title = f"namespace {qualified(cursor)}" if qualified(cursor) else "outside of namespaces"
        for child in cursor.get_children():
            header = pathlib.Path(child.location.file.name if child.location.file else "")
            library = self.owner_of(header)
            if not library:
                continue
            interface = self.interfaces[library]
            if child.kind == CursorKind.NAMESPACE:
                self.read_namespace(child)
            elif child.kind in CLASSES:
                self.read_class(child, header, interface)
            elif child.kind == CursorKind.ENUM_DECL:
                interface.update([enumeration(child)])
            elif child.kind in FUNCTIONS:
                if child.semantic_parent == cursor:  # not the definition of a class's member
                    self.symbols.add(child, header)
                    interface.setdefault(title, set()).add((call(child), function(child)))
            elif child.kind == CursorKind.VAR_DECL:
                self.symbols.add(child, header)
                interface.setdefault(title, set()).add((child.spelling, variable(child)))
            elif child.kind == CursorKind.TYPE_ALIAS_DECL:
                interface.setdefault(title, set()).add((child.spelling, alias(child)))
            elif child.kind not in PASSED_OVER:
                unknown(child)

    def read_class(self, cursor, header, interface):
        name = qualified(cursor)
        if not cursor.get_definition():
            self.symbols.opaque.append(f"{name}::")
        if not cursor.is_definition():
            return
        interface[f"class {name}"] = class_lines(cursor, header)
        if cursor.kind == CursorKind.CLASS_TEMPLATE:
            self.symbols.templates.append(name.split("<")[0] + "<")
        elif not name.endswith(">"):  # an instance has its functions from the template
            self.symbols.places[name] = virtual_places(cursor)[1]
        for child in cursor.get_children():
            if child.kind in FUNCTIONS or child.kind == CursorKind.VAR_DECL:
                self.symbols.add(child, header)
            elif child.kind in CLASSES:
                self.read_class(child, header, interface)
            elif child.kind == CursorKind.ENUM_DECL:
                interface.update([enumeration(child)])


def read(source_dir, build_dir):
    """The interface of every library."""
    headers = Headers(source_dir, parse(source_dir, build_dir))
    for library, interface in headers.interfaces.items():
        interface["symbols"] = headers.symbols.exported_by(build_dir / "bin" / f"lib{library}.so")
    return headers.interfaces
