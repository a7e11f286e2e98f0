"""Asks the library for its answers through number_driver."""

import struct
import subprocess
from dataclasses import dataclass

from number_model import NumberFormat


@dataclass
class Case:
    number_format: NumberFormat
    text: str
    # Whether the library is passed a null pointer in place of an empty text.
    is_null: bool = False


@dataclass
class Answers:
    cut: str
    grouped: str
    valid: bool
    input_valid: bool
    formatted: str


class Died(Exception):
    """Raised when the driver's process ends during a case."""

    def __init__(self, index, how):
        super().__init__(f"number_driver ended during case {index}: {how}")
        self.index = index


def ask(driver, locale_name, cases):
    """Returns the library's answers to the cases, in the same order."""
    run = subprocess.run([driver, *locale_name.split("/")], input=b"".join(map(_packed, cases)), capture_output=True)
    answers = []
    output = memoryview(run.stdout)
    try:
        while len(output):
            cut, output = _unpacked_text(output)
            grouped, output = _unpacked_text(output)
            valid, input_valid, output = output[0], output[1], output[2:]
            formatted, output = _unpacked_text(output)
            answers.append(Answers(cut, grouped, bool(valid), bool(input_valid), formatted))
    except (struct.error, IndexError):
        pass
    if run.returncode != 0 or len(answers) != len(cases):
        raise Died(len(answers), f"exit code {run.returncode}\n{run.stderr.decode(errors='replace')}")
    return answers


def _packed(case):
    f = case.number_format
    return struct.pack(
        "=10?2I2Q2d", f.pad_decimals, f.round_decimals, f.allow_sign, f.group_digits, f.trailing_minus,
        f.allow_exponent, f.has_decimals, f.has_max_int_digits, f.has_min, f.has_max, ord(f.decimal_point),
        ord(f.thousands_sep), f.decimals, f.max_int_digits, f.min, f.max
    ) + _packed_text(f.template) + struct.pack("=?", case.is_null) + _packed_text(case.text)


def _packed_text(text):
    return struct.pack("=I", len(text)) + text.encode(_WIDE, "surrogatepass")


def _unpacked_text(data):
    (length,) = struct.unpack_from("=I", data)
    end = 4 + 4 * length
    if len(data) < end:
        raise IndexError
    return str(data[4:end], _WIDE, "surrogatepass"), data[end:]


# The encoding of wchar_t texts, in the machine's byte order.
_WIDE = "utf-32-le" if struct.pack("=H", 1) == struct.pack("<H", 1) else "utf-32-be"
