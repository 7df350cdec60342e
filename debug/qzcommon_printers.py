"""Shows values of QzCommon in gdb and lldb: UnicodeString and the 8-bit strings, TStringList, Variant, TValue,
Ref, TDateTime, TDate, TTime.

    (gdb) source PREFIX/share/rQzCommon210/qzcommon_printers.py
    (lldb) command script import PREFIX/share/rQzCommon210/qzcommon_printers.py

gdb loads it automatically with the shared library in the place where it was installed; see docs/debugging.md.
Values are read from memory by the layouts of StringBlock.h, Variant.h, Value.h and TypeInfo.h. The library needs
no debug information, and nothing is called in the program, so that core files can be read too.
"""
import codecs
import datetime
import re
import struct

LONGEST_TEXT = 0x3FFFFFF0
SHOWN_UNITS = 200  # of a longer text
VARIANT_TYPES = {
    0: "Empty", 1: "Null", 2: "Smallint", 3: "Integer", 4: "Single", 5: "Double", 6: "Currency", 7: "Date",
    8: "OleStr", 9: "Dispatch", 10: "Error", 11: "Boolean", 12: "Variant", 13: "Unknown", 14: "Decimal",
    16: "ShortInt", 17: "Byte", 18: "Word", 19: "LongWord", 20: "Int64", 21: "UInt64", 73: "Object",
    256: "String", 258: "UString"}
# The form of a variant of that type, for struct.
VARIANT_NUMBERS = {
    2: "<h", 3: "<i", 4: "<f", 5: "<d", 16: "<b", 17: "<B", 18: "<H", 19: "<I", 20: "<q", 21: "<Q"}
KIND_ENUMERATION, KIND_FLOAT = 3, 4
KINDS_OF_ORDINALS = (1, 2, KIND_ENUMERATION, 9, 16)  # tkInteger, tkChar, tkEnumeration, tkWChar, tkInt64
KINDS_OF_CHARACTERS = (2, 9)
KINDS_OF_TEXTS = {10: "narrow", 11: "wide", 18: "wide"}  # tkLString, tkWString, tkUString
KIND_VARIANT = 12
KINDS_OF_POINTERS = (7, 15, 19, 20, 21)  # tkClass, tkInterface, tkClassRef, tkPointer, tkProcedure


def pointer(memory, address):
    return struct.unpack("<Q", memory(address, 8))[0]


def quoted(text, is_cut, prefix):
    special = {"\\": "\\\\", '"': '\\"', "\n": "\\n", "\r": "\\r", "\t": "\\t"}
    shown = "".join(special.get(c) or (c if c.isprintable() else f"\\u{ord(c):04x}") for c in text)
    return f'{prefix}"{shown}"' + ("..." if is_cut else "")


def text_at(memory, data, is_wide):
    """The text whose first character is at that address; its block begins 16 bytes before."""
    if data == 0:
        return 'u""' if is_wide else '""'
    page, size, _, length = struct.unpack("<HHii", memory(data - 16, 12))
    if size != (2 if is_wide else 1) or not 0 <= length <= LONGEST_TEXT:
        return "<no text>"
    shown = min(length, SHOWN_UNITS)
    units = memory(data, shown * size)
    codec = "utf-16-le"
    if not is_wide:
        codec = {0: "utf-8", 20127: "ascii", 28591: "latin-1", 65001: "utf-8"}.get(page, f"cp{page}")
        try:
            codecs.lookup(codec)
        except LookupError:
            codec = "latin-1"
    return quoted(units.decode(codec, "replace"), shown < length, "u" if is_wide else "")


def date_text(value, kind="TDateTime"):
    """ISO 8601, rounded to the millisecond; the number itself outside the years 1 to 9999."""
    if not -693594 < value < 2958466:
        return repr(value)
    day = int(value)
    time = int(abs(value - day) * 86400000 + 0.5)
    day, time = day + time // 86400000, time % 86400000
    if day + 693594 > datetime.date.max.toordinal():
        return repr(value)
    date = datetime.date.fromordinal(day + 693594).isoformat()
    clock = f"{time // 3600000:02}:{time // 60000 % 60:02}:{time // 1000 % 60:02}.{time % 1000:03}"
    if kind in ("TDate", "TQzUTCDate"):
        return date
    return clock if kind in ("TTime", "TQzUTCTime") else f"{date} {clock}"


def decimal_text(units, scale):
    digits = str(abs(units)).rjust(scale + 1, "0")
    text = digits[:-scale] + "." + digits[-scale:] if scale else digits
    return ("-" if units < 0 else "") + (text.rstrip("0").rstrip(".") if scale else text)


def variant_text(memory, address):
    code, scale, sign, high = struct.unpack("<HBBI", memory(address, 8))
    data = memory(address + 8, 8)
    integer, = struct.unpack("<q", data)
    name = VARIANT_TYPES.get(code & 0x0FFF, f"type {code}")
    if code & 0x2000:
        elements = struct.unpack("<Q", memory(integer + 8, 8))[0]
        return f"array of {elements} {name}"
    if code in (0, 1):
        return name
    if code in VARIANT_NUMBERS:
        form = VARIANT_NUMBERS[code]
        number = struct.unpack(form, data[:struct.calcsize(form)])[0]
        return f"{name} {number:.9g}" if code == 4 else f"{name} {number!r}"
    if code == 6:
        return f"{name} {decimal_text(integer, 4)}"
    if code == 7:
        return f"{name} {date_text(struct.unpack('<d', data)[0])}"
    if code in (8, 256, 258):
        return f"{name} {text_at(memory, integer, code != 256)}"
    if code == 11:
        return f"{name} {'true' if integer else 'false'}"
    if code == 14:
        units = high << 64 | integer & 0xFFFFFFFFFFFFFFFF
        return f"{name} {decimal_text(-units if sign else units, scale)}"
    return f"{name} 0x{integer & (0xFFFFFFFF if code == 10 else 0xFFFFFFFFFFFFFFFF):x}"


def view_at(memory, address):
    """A std::u16string_view."""
    length, data = struct.unpack("<QQ", memory(address, 16))
    return memory(data, 2 * min(length, SHOWN_UNITS)).decode("utf-16-le", "replace")


def ordinal_text(memory, info, kind, data):
    is_signed, is_boolean = struct.unpack("<??", memory(info + 49, 2))
    number = int.from_bytes(data, "little", signed=is_signed)
    if is_boolean:
        return "true" if number else "false"
    if kind in KINDS_OF_CHARACTERS:
        return quoted(chr(number), False, "")
    if kind == KIND_ENUMERATION:
        items, count = struct.unpack("<QQ", memory(info + 72, 16))
        for item in range(items, items + 24 * min(count, 1000), 24):
            if struct.unpack("<q", memory(item + 16, 8))[0] == number:
                return view_at(memory, item)
    return str(number)


def value_text(memory, address):
    """A TValue: 16 bytes of room, then its type."""
    info = pointer(memory, address + 16)
    if info == 0:
        return "no value"
    kind, = memory(info, 1)
    name, ops = view_at(memory, info + 8), pointer(memory, info + 40)
    size, is_small = pointer(memory, ops), memory(ops + 65, 1) != b"\0"
    place = address
    if not is_small:
        block = pointer(memory, address)
        place = block + struct.unpack("<I", memory(block + 4, 4))[0]
    data = memory(place, min(size, 16))
    if kind in KINDS_OF_ORDINALS:
        return f"{name} {ordinal_text(memory, info, kind, data)}"
    if kind in KINDS_OF_TEXTS:
        return f"{name} {text_at(memory, pointer(memory, place), KINDS_OF_TEXTS[kind] == 'wide')}"
    if kind == KIND_VARIANT:
        return f"{name} {variant_text(memory, place)}"
    if kind == KIND_FLOAT and re.fullmatch("T(QzUTC)?(Date|Time|DateTime)", name):
        return f"{name} {date_text(struct.unpack('<d', data)[0], name)}"
    if kind == KIND_FLOAT and name == "Currency":
        return f"{name} {decimal_text(struct.unpack('<q', data)[0], 4)}"
    if kind == KIND_FLOAT and size in (4, 8):
        return f"{name} {struct.unpack('<f' if size == 4 else '<d', data)[0]:.17g}"
    if kind in KINDS_OF_POINTERS:
        return f"{name} 0x{pointer(memory, place):x}"
    return f"{name} at 0x{place:x}"


READERS = {  # what shows a value by its address
    "text": lambda memory, address: text_at(memory, pointer(memory, address), True),
    "narrow": lambda memory, address: text_at(memory, pointer(memory, address), False),
    "variant": variant_text,
    "value": value_text,
}
TYPES = {  # the full names of types, as a pattern, and what shows them
    r"^qz::UnicodeString$": "text",
    r"^qz::TStringKind<.*>$": "text",
    r"^qz::(TByteText|TAnsiText<.*>)$": "narrow",
    r"^qz::Variant$": "variant",
    r"^qz::TValue$": "value",
    r"^qz::TDateTimeKind<.*>$": "date",
    r"^qz::Ref<.*>$": "reference",
    r"^qz::T(Qz)?StringList$": "list",
}


def date_name(type_name):
    """TDate for qz::TDateTimeKind<qz::TDateTag>."""
    tag = re.search(r"(\w+)Tag>", type_name)
    return tag[1] if tag else "TDateTime"


def setup_gdb(gdb):
    import gdb.printing

    def memory(address, size):
        return bytes(gdb.selected_inferior().read_memory(address, size)) if size else b""

    class Printer:
        def __init__(self, value, show):
            self.value, self.show = value, show

        def to_string(self):
            try:
                text = self.text()
            except (gdb.MemoryError, UnicodeError, ValueError, OverflowError, struct.error):
                text = "<unreadable>"
            charset = gdb.host_charset() if hasattr(gdb, "host_charset") else "utf-8"
            return text.encode(charset, "backslashreplace").decode(charset)

        def text(self):
            if self.show == "date":
                return date_text(float(self.value["Value"]), date_name(self.value.type.strip_typedefs().name))
            if self.show == "reference":
                target = self.value["FObject"]
                return f"{target.dynamic_type.target().name} at 0x{int(target):x}" if int(target) else "null"
            return READERS[self.show](memory, int(self.value.address))

    class ListPrinter:
        def __init__(self, value):
            self.items = value["FItems"]["_M_impl"]
            self.first = self.items["_M_start"]
            self.count = int(self.items["_M_finish"] - self.first)

        def to_string(self):
            return f"list of {self.count}"

        def children(self):
            for index in range(self.count):
                yield f"[{index}]", (self.first + index)["Text"]

        def display_hint(self):
            return "array"

    printers = gdb.printing.RegexpCollectionPrettyPrinter("qzcommon")
    for pattern, show in TYPES.items():
        make = ListPrinter if show == "list" else lambda value, show=show: Printer(value, show)
        printers.add_printer(pattern.strip("^$"), pattern, make)
    gdb.printing.register_pretty_printer(None, printers, replace=True)


def lldb_items(value):
    """The first item of a TStringList, and how many there are."""
    items = value.GetNonSyntheticValue().GetValueForExpressionPath(".FItems._M_impl")
    first, end = (items.GetChildMemberWithName(name) for name in ("_M_start", "_M_finish"))
    size = first.GetType().GetPointeeType().GetByteSize()
    return first, (end.GetValueAsUnsigned() - first.GetValueAsUnsigned()) // size if size else 0


class LldbList:
    """The texts of a TStringList as children."""

    def __init__(self, value, _):
        self.value = value
        self.update()

    def update(self):
        self.first, self.count = lldb_items(self.value)
        return False

    def num_children(self):
        return self.count

    def get_child_index(self, name):
        return int(name.strip("[]"))

    def get_child_at_index(self, index):
        item = self.first.GetType().GetPointeeType()
        text = item.GetFieldAtIndex(0)  # TItem::Text
        address = self.first.GetValueAsUnsigned() + index * item.GetByteSize() + text.GetOffsetInBytes()
        return self.first.CreateValueFromAddress(f"[{index}]", address, text.GetType())


def lldb_summary(value, _):
    """What lldb shows for a value."""
    import lldb
    value = value.GetNonSyntheticValue()
    name = value.GetType().GetCanonicalType().GetUnqualifiedType().GetName()
    show = next(show for pattern, show in TYPES.items() if re.match(pattern, name))

    def memory(address, size):
        error = lldb.SBError()
        data = value.GetProcess().ReadMemory(address, size, error) if size else b""
        if error.Fail():
            raise ValueError(error.GetCString())
        return data

    try:
        if show == "list":
            return f"list of {lldb_items(value)[1]}"
        if show == "date":
            bits = value.GetChildMemberWithName("Value").GetData().uint64[0]
            return date_text(struct.unpack("<d", struct.pack("<Q", bits))[0], date_name(name))
        if show == "reference":
            target = value.GetChildMemberWithName("FObject")
            address = target.GetValueAsUnsigned()
            dynamic = target.GetDynamicValue(lldb.eDynamicDontRunTarget).GetType().GetPointeeType().GetName()
            return f"{dynamic} at 0x{address:x}" if address else "null"
        return READERS[show](memory, value.GetLoadAddress())
    except (UnicodeError, ValueError, OverflowError, struct.error):
        return "<unreadable>"


def __lldb_init_module(debugger, _):
    for pattern, show in TYPES.items():
        expand = "-e" if show == "list" else ""
        debugger.HandleCommand(f'type summary add {expand} -x "{pattern}" -F {__name__}.lldb_summary')
        if show == "list":
            debugger.HandleCommand(f'type synthetic add -x "{pattern}" -l {__name__}.LldbList')


try:
    import gdb
except ImportError:
    pass
else:
    setup_gdb(gdb)
