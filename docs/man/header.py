"""The public header, as Doxygen's XML has it."""

import re
import xml.etree.ElementTree as ElementTree

from roff import inline, one_line

# Groups of functions up to this size are mentioned whole on the page of each.
LARGEST_FAMILY = 10


def text_of(node):
    return one_line("".join(node.itertext())) if node is not None else ""


class Symbol:
    """A function, data symbol, constant, record or member, and what the header says of it."""

    def __init__(self, definition):
        self.name = definition.findtext("name") or definition.findtext("compoundname")
        self.type = text_of(definition.find("type"))
        self.suffix = definition.findtext("argsstring") or ""
        self.value = text_of(definition.find("initializer")).lstrip("= ")
        self.parameters = [
            (text_of(parameter.find("type")), parameter.findtext("declname"))
            for parameter in definition.findall("param")
            if parameter.find("declname") is not None
        ]
        self.members = [Symbol(member) for member in definition.findall("sectiondef/memberdef")]
        self.brief = one_line(" ".join(inline(para) for para in definition.findall("briefdescription/para")))
        self.read_details(definition.find("detaileddescription"))

    def read_details(self, details):
        paragraphs = [inline(para) for para in details.findall("para")]
        self.details = [paragraph for paragraph in paragraphs if paragraph]
        # The first sentence, which Doxygen takes apart, and the rest of its paragraph belong together.
        first, *others = self.details or [""]
        self.paragraphs = [one_line(f"{self.brief} {first}")] + others
        self.numbered = [inline(item.find("para")) for item in details.iter("listitem")]
        self.arguments = [self.argument(item) for item in details.iter("parameteritem")]
        self.result = self.remarks(details, "return")
        notes = [note.partition("Errors: ") for note in self.remarks(details, "note")]
        self.messages = [messages for _, _, messages in notes if messages]
        self.notes = [note for note, _, _ in notes if note]
        self.errors = self.remarks(details, "remark")
        self.words = set(re.findall(r"\w+", text_of(details) + self.brief))

    @staticmethod
    def argument(item):
        name = item.find("parameternamelist/parametername")
        direction = {"out": "output", "inout": "input and output"}.get(name.get("direction"), "")
        return name.text, direction, inline(item.find("parameterdescription"))

    @staticmethod
    def remarks(details, kind):
        found = [remark for remark in details.iter("simplesect") if remark.get("kind") == kind]
        return [one_line(" ".join(inline(para) for para in remark.findall("para"))) for remark in found]


class Group:
    """A section of the header."""

    def __init__(self, definition, records):
        members = definition.findall("sectiondef/memberdef")
        self.title = definition.findtext("title")
        self.text = Symbol(definition)
        self.line = min(int(member.find("location").get("line")) for member in members)
        self.functions = [Symbol(member) for member in members if member.get("kind") == "function"]
        self.data = [Symbol(member) for member in members if member.get("kind") == "variable"]
        constants = [member for member in members if member.get("kind") == "define"]
        constants += [value for member in members for value in member.findall("enumvalue")]
        self.constants = [Symbol(constant) for constant in constants]
        self.records = [records[record.get("refid")] for record in definition.findall("innerclass")]


class Header:
    def __init__(self, directory):
        def compounds(pattern):
            return [ElementTree.parse(path).getroot().find("compounddef") for path in directory.glob(pattern)]

        records = {definition.get("id"): Symbol(definition) for definition in compounds("struct*.xml")}
        groups = [Group(definition, records) for definition in compounds("group__*.xml")]
        self.text = Symbol(compounds("routerdb_8h.xml")[0])
        self.groups = sorted(groups, key=lambda group: group.line)
        self.records = {record.name: record for record in records.values()}
        self.functions = {function.name: function for group in groups for function in group.functions}

    def neighbours(self, symbol, group):
        """What a reader of this symbol's page may want next: what it is made of, what it mentions, its family."""
        words = symbol.words | {symbol.name}
        for text in [text for text, _ in symbol.parameters] + [member.type for member in symbol.members]:
            words |= set(re.findall(r"\w+", text))
        stems = {self.stem(record) for record in self.records if record in words or record in symbol.name}
        names = words & (self.functions.keys() | self.records.keys())
        names |= {name for stem in stems for name in self.functions.keys() | self.records.keys() if self.has(name, stem)}
        if len(group.functions) <= LARGEST_FAMILY:
            names |= {function.name for function in group.functions}
        return sorted(names - {symbol.name}, key=str.lower)

    def stem(self, record):
        """What the names around a record and its list share."""
        item = record.removesuffix("List")
        return item if item in self.records else record

    @staticmethod
    def has(name, stem):
        """Whether a stem is a whole part of a name: `MacFilterItem` of `DelMacFilterItemById`."""
        return stem != "DevInfo" and re.search(rf"{stem}(?![a-z])", name) is not None
