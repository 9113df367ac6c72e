"""The record of an interface as text, and what has become of the interface since it was written."""

import dataclasses
import re

# What a class is made of: programs are compiled with all of it.
LAYOUT = re.compile("(size|base|at|virtual) ")


def place(title):
    """Headers first, symbols last, and everything else by its name."""
    return {"headers": 0, "symbols": 2}.get(title, 1), re.sub("^(class|enum class|enum|namespace) ", "", title)


def text_of(interface, heading):
    blocks = ("\n".join([title, *(f"  {line}" for line in lines)]) for title, lines in
              sorted(interface.items(), key=lambda block: place(block[0])))
    return "\n\n".join([heading, *blocks]) + "\n"


def parse(text):
    """The blocks of a record, title -> {line: its number in the text}, and the numbers of the titles."""
    blocks, titles = {}, {}
    for number, line in enumerate(text.splitlines(), 1):
        if line.startswith("  "):
            blocks[title][line.strip()] = number
        elif line and not line.startswith("#"):
            title = line
            blocks[title] = {}
            titles[title] = number
    return blocks, titles


def subject(line):
    """What a line is about, by which it is found again when the rest of it has changed."""
    for pattern in (r"(size) ",  # of a class
                    r"at .*: (.*)",  # a data member, wherever it has moved to
                    r"virtual +\d+: (.*)",  # a virtual function
                    r"(\w+) = -?\d+$",  # a value of an enumeration
                    r"(using \w+) ="):
        found = re.match(pattern, line)
        if found:
            return found[1]
    call = re.search(r"([\w:~]+|operator\S+)\(", line)
    return call[1] if call else line.split(" ")[-1]


@dataclasses.dataclass
class Differences:
    breaks: list = dataclasses.field(default_factory=list)  # a program that was built before would go wrong
    additions: list = dataclasses.field(default_factory=list)  # not recorded yet


def is_renamed(line, gone, new):
    """Whether a private data member has but got another name, which no program ever says."""
    old = re.fullmatch(r"(at .*: private .*) (\w+)", line)
    if not old:
        return False
    others = [re.fullmatch(r"(at .*: private .*) (\w+)", other) for other in new]
    mine = next((other for other in others if other and other[1] == old[1]), None)
    names_before = {other.split(" ")[-1] for other in gone if other != line}
    return mine is not None and mine[2] not in names_before and old[2] not in {other[2] for other in others if other}


def compare_block(title, recorded, current, where, result):
    gone = [line for line in recorded if line not in current]
    new = [line for line in current if line not in recorded]
    renamed = [line for line in gone if is_renamed(line, gone, new)]
    places_of_renamed = {line.rsplit(" ", 1)[0] for line in renamed}
    replaced = set()
    for line in gone:
        if line in renamed:
            continue
        successors = [other for other in new if subject(other) == subject(line) and other not in replaced]
        alike = [other for other in gone if subject(other) == subject(line)]
        if len(successors) == 1 and len(alike) == 1:
            replaced.add(successors[0])
            result.breaks.append(f"{where(recorded[line])}: {title}: '{line}' is now '{successors[0]}'")
        else:
            result.breaks.append(f"{where(recorded[line])}: {title}: '{line}' is gone")
    for line in new:
        if line in replaced:
            continue
        if title.startswith("class ") and LAYOUT.match(line) and line.rsplit(" ", 1)[0] not in places_of_renamed:
            result.breaks.append(f"{title}: '{line}' is new, but programs are compiled with the class as it was")
        else:
            result.additions.append(f"{title}: '{line}'")


def compare(record, interface, name):
    """What has become of INTERFACE since RECORD, the text of the file NAME, was written."""
    result = Differences()
    recorded, titles = parse(record)
    current = {title: dict.fromkeys(lines) for title, lines in interface.items()}

    def where(number):
        return f"{name}:{number}"

    for title, lines in recorded.items():
        if title in current:
            compare_block(title, lines, current[title], where, result)
        else:
            result.breaks.append(f"{where(titles[title])}: '{title}' is gone")
    result.additions += [f"'{title}'" for title in current if title not in recorded]
    return result
