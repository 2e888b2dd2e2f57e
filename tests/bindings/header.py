"""What castxml reads in routerdb.h, as ctypes."""
import ctypes
import xml.etree.ElementTree

numbers = {
    "char": ctypes.c_char,
    "unsigned char": ctypes.c_ubyte,
    "int": ctypes.c_int,
    "unsigned int": ctypes.c_uint,
    "long int": ctypes.c_long,
    "long unsigned int": ctypes.c_ulong,
    "void": None,
}


class Header:
    """The functions, variables and records of the header, by name."""

    def __init__(self, path):
        self._elements = {element.get("id"): element for element in xml.etree.ElementTree.parse(path).getroot()}
        self._types = {}
        self._file = next(
            name for name, element in self._elements.items() if element.get("name", "").endswith("/routerdb.h"))

    def names(self, kind):
        """Names of what the header itself declares: "Function", "Variable", "Typedef"."""
        return [element.get("name") for element in self._declared(kind)]

    def record(self, name):
        return self._type(self._find("Typedef", name).get("type"))

    def load(self, path):
        """The library, its functions with their arguments and results."""
        library = ctypes.CDLL(path)
        for element in self._declared("Function"):
            function = getattr(library, element.get("name"))
            function.argtypes = [self._type(argument.get("type")) for argument in element]
            function.restype = self._type(element.get("returns"))
        return library

    def variable(self, library, name):
        return self._type(self._find("Variable", name).get("type")).in_dll(library, name)

    def takes_records(self, name):
        """Whether a function has an argument that is a record, not a pointer to one."""
        return any(
            isinstance(self._type(argument.get("type")), type(ctypes.Structure))
            for argument in self._find("Function", name))

    def _declared(self, kind):
        return (element for element in self._elements.values()
                if element.tag == kind and element.get("file") == self._file)

    def _find(self, kind, name):
        return next(element for element in self._declared(kind) if element.get("name") == name)

    def _type(self, name):
        if name not in self._types:
            self._types[name] = self._translate(self._elements[name])
        return self._types[name]

    def _translate(self, element):
        if element.tag == "FundamentalType":
            return numbers[element.get("name")]
        if element.tag == "PointerType":
            return self._pointer(element.get("type"))
        if element.tag == "ArrayType":
            return self._type(element.get("type")) * (int(element.get("max")) + 1)
        if element.tag == "Struct" and not element.get("incomplete"):
            return self._structure(element)
        if element.tag in ("Struct", "Union"):  # what only the C library and SQLite look into
            return ctypes.c_byte * (int(element.get("size", 0)) // 8)
        return self._type(element.get("type"))

    def _pointer(self, name):
        target = self._type(name)
        return ctypes.c_void_p if target is None else ctypes.POINTER(target)

    def _structure(self, element):
        structure = type(element.get("name"), (ctypes.Structure,), {})
        self._types[element.get("id")] = structure  # before its members, one of which may point to it
        members = (self._elements[name] for name in element.get("members").split())
        structure._fields_ = [(member.get("name"), self._type(member.get("type")))
                              for member in members if member.tag == "Field"]
        return structure
