"""Texts as roff source: what a page shows is what the header says, to the character."""

import re
import textwrap

ESCAPES = {"\\": "\\(rs", "'": "\\(aq", "`": "\\(ga", "^": "\\(ha", "~": "\\(ti"}
OURS = re.compile(r"\b(ROUTERDB_\w+|\w+(?=\(\)))")


def escape(text):
    """A hyphen behind a letter may end a line; any other one is a minus, which readers copy."""
    text = "".join(ESCAPES.get(character, character) for character in text)
    return re.sub(r"(?<![A-Za-z])-", r"\\-", text)


def inline(node):
    """The text in an element of Doxygen's XML, `names` in italics, our constants and functions in bold."""
    if node.tag == "computeroutput":
        return "\\fI" + escape("".join(node.itertext())) + "\\fP"
    pieces = [OURS.sub(r"\\fB\1\\fP", escape(node.text or ""))]
    for child in node:
        if child.tag not in ("parameterlist", "simplesect", "orderedlist"):
            pieces.append(inline(child))
        pieces.append(OURS.sub(r"\\fB\1\\fP", escape(child.tail or "")))
    return one_line("".join(pieces))


def one_line(text):
    return " ".join(text.split())


def filled(text):
    """The lines of a paragraph. One that begins with a dot would be a request."""
    lines = textwrap.wrap(text, 79, break_long_words=False, break_on_hyphens=False)
    return ["\\&" + line if line.startswith(".") else line for line in lines]


def ended(text):
    return text if text.endswith((".", ":")) else text + "."


def sentence(text):
    return ended(text[:1].upper() + text[1:])


def section(title, paragraphs):
    """A section, unless it would be empty."""
    lines = [f".SH {title}"]
    for index, paragraph in enumerate(paragraphs):
        lines += [".PP"] * (index > 0) + filled(paragraph)
    return lines if paragraphs else []


def tagged(tag, text):
    return [".TP", tag] + filled(text)


def see_also(names):
    lines = [".SH SEE ALSO"]
    lines += [f".BR {name} (3)," for name in names]
    lines[-1] = lines[-1].rstrip(",")
    return lines
