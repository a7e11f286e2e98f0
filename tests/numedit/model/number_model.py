"""A second, independent implementation of CNumberEditUtils.

Each operation of fittings/numedit/number_edit_utils.h is one function here. It was written from the documented
behaviour and not from the C++ code, so that one mistake does not occur in both. The functions are meant to be simple,
not fast.
Texts are Python strings. A text that the library takes as a pointer contains no U+0000.
"""

import ctypes
from dataclasses import dataclass

DIGITS = "0123456789"
SIGNS = ("+", "-")
EXPONENT_LETTERS = ("e", "E")

# No format appends more zeros than this.
MOST_PADDING = 1_000_000


@dataclass
class NumberFormat:
    """The fields of CNumberFormat. The defaults are those of its fixed preset."""

    pad_decimals: bool = True
    round_decimals: bool = False
    allow_sign: bool = True
    group_digits: bool = True
    trailing_minus: bool = True
    allow_exponent: bool = False
    decimal_point: str = "."
    thousands_sep: str = ","
    template: str = "%s"
    has_decimals: bool = True
    decimals: int = 2
    has_max_int_digits: bool = True
    max_int_digits: int = 5
    has_min: bool = False
    min: float = 0.0
    has_max: bool = False
    max: float = 0.0


class _Lconv(ctypes.Structure):
    _fields_ = [("decimal_point", ctypes.c_char_p), ("thousands_sep", ctypes.c_char_p)]


class Locale:
    """What the operations need from the process's locale, as the C library returns it.

    The constructor sets the locale of this process. NAME may consist of two locales, as "CHARACTERS/NUMBERS".
    """

    def __init__(self, name):
        self._libc = ctypes.CDLL(None)
        self._libc.setlocale.restype = ctypes.c_char_p
        self._libc.localeconv.restype = ctypes.POINTER(_Lconv)
        self._libc.wcstod.restype = ctypes.c_double
        self._libc.wcstod.argtypes = [ctypes.c_wchar_p, ctypes.c_void_p]
        self._libc.mbstowcs.restype = ctypes.c_ssize_t
        self._blanks = {}
        lc_all, lc_numeric = 6, 1
        characters, _, numbers = name.partition("/")
        if not self._libc.setlocale(lc_all, characters.encode()):
            raise OSError(f"there is no locale {characters}")
        if numbers and not self._libc.setlocale(lc_numeric, numbers.encode()):
            raise OSError(f"there is no locale {numbers}")

    def point(self):
        """Returns the decimal point; empty if the locale's character set cannot represent it."""
        bytes_of_point = self._libc.localeconv().contents.decimal_point
        wide = ctypes.create_unicode_buffer(len(bytes_of_point) + 1)
        length = self._libc.mbstowcs(wide, bytes_of_point, len(bytes_of_point) + 1)
        return wide.value if length > 0 else ""

    def is_blank(self, character):
        if character not in self._blanks:
            self._blanks[character] = bool(self._libc.iswspace(ord(character)))
        return self._blanks[character]

    def to_number(self, text):
        """Returns the number that the text begins with; 0 if there is none."""
        return self._libc.wcstod(text, None)


def cut_zeros(text, number_format, locale):
    point = number_format.decimal_point

    start = 0
    while start < len(text) and locale.is_blank(text[start]):
        start += 1
    # The last character stays, even if it is a zero. Leading zeros after a sign are not cut.
    while start < len(text) - 1 and text[start] == "0":
        start += 1
    end = len(text)
    while end > start and locale.is_blank(text[end - 1]):
        end -= 1
    text = text[start:end]

    mantissa_length = _count_while(text, lambda character: character not in EXPONENT_LETTERS)
    mantissa, exponent = text[:mantissa_length], text[mantissa_length:]
    if point in mantissa:
        mantissa = mantissa[0] + mantissa[1:].rstrip("0")
        if mantissa[-1] == point:
            mantissa = mantissa[:-1]

    if not mantissa:
        mantissa = "0"
    elif mantissa[0] == point:
        mantissa = "0" + mantissa
    return mantissa + exponent


def group_digits(text, number_format):
    integer, point, fraction = text.partition(number_format.decimal_point)
    grouped = ""
    for index, character in enumerate(integer):
        left = len(integer) - index
        if index > 0 and left % 3 == 0:
            grouped += number_format.thousands_sep
        grouped += character
    return _up_to_first_zero(grouped + point + fraction)


def validate_string(text, number_format, locale):
    locale_point = locale.point()
    if locale_point:
        text = text.replace(number_format.decimal_point, locale_point)

    # The bounds are checked first. Every comparison with NaN is false, so NaN passes.
    value = locale.to_number(text)
    if number_format.has_max and value > number_format.max:
        return False
    if number_format.has_min and number_format.min > value:
        return False

    # From here on, a text that ends early is accepted, because the user may still be typing.
    rest = text
    if number_format.allow_sign and rest[:1] in SIGNS:
        rest = rest[1:]
    unsigned = rest

    digits = _count_digits(rest)
    if number_format.has_max_int_digits and digits > number_format.max_int_digits:
        return False
    rest = rest[digits:]

    if number_format.has_decimals and number_format.decimals > 0:
        if locale_point and rest[:1] == locale_point[0]:
            rest = rest[1:]
        digits = _count_digits(rest)
        if digits > number_format.decimals:
            return False
        rest = rest[digits:]

    if not rest:
        return True
    if rest == unsigned or not number_format.allow_exponent:
        return False
    # The letter is optional: 12-5 is accepted like 12e-5.
    if rest[:1] in EXPONENT_LETTERS:
        rest = rest[1:]
    if rest[:1] in SIGNS:
        rest = rest[1:]
    return _count_digits(rest) == len(rest)


def validate_input(text, number_format, locale):
    point = number_format.decimal_point
    if number_format.has_decimals and number_format.decimals > 0:
        if text == point or text == "0":
            return True
        zeros = len(text) - 2
        if text[:2] == "0" + point and zeros <= number_format.decimals and text[2:] == "0" * zeros:
            return True
    return validate_string(text, number_format, locale)


def format_control_text(text, number_format, locale):
    if not text:
        return ""
    point = number_format.decimal_point
    decimals = number_format.decimals if number_format.has_decimals else None
    if locale.point():
        text = text.replace(locale.point(), point)
    text = cut_zeros(text, number_format, locale)

    sign, rest = (text[0], text[1:]) if text[0] in SIGNS else ("", text)
    integer, rest = _split_digits(rest)
    fraction = ""
    has_point = rest[:1] == point
    if has_point:
        typed_fraction, rest = _split_digits(rest[1:])
        fraction = typed_fraction
        if number_format.round_decimals:
            integer, fraction = _round_half_up(integer, typed_fraction, decimals)
    shows_point = has_point and not (number_format.round_decimals and decimals == 0)

    # Padding adds zeros to the typed decimals. It applies only if no text follows the decimals.
    if number_format.pad_decimals and decimals and not rest:
        missing = decimals - len(typed_fraction) if has_point else decimals
        fraction += "0" * min(missing, MOST_PADDING)
        shows_point = True

    # If the point is U+0000, the number ends at it.
    number = _up_to_first_zero(integer + (point if shows_point else "") + fraction)
    if number_format.group_digits:
        number = group_digits(number, number_format)
    if sign == "-":
        number = number + "-" if number_format.trailing_minus else "-" + number

    # The exponent follows even a trailing minus: -1.5e3 becomes 1.5-e3. Text after the exponent's digits is dropped.
    if rest and rest[0] in EXPONENT_LETTERS:
        exponent_sign = rest[1:2] if rest[1:2] in SIGNS else ""
        exponent_digits, _ = _split_digits(rest[1 + len(exponent_sign):])
        number += rest[0] + exponent_sign + exponent_digits
    return _fill_in(number_format.template, number)


def _round_half_up(integer, fraction, decimals):
    """Returns the number rounded to at most that many decimals; None means no limit. A carry may add a digit."""
    if decimals is None or len(fraction) <= decimals:
        return integer, fraction
    digits = integer + fraction[:decimals]
    if fraction[decimals] >= "5":
        # Nines at the end become zeros, and the digit before them is raised.
        before_nines = digits.rstrip("9")
        nines = len(digits) - len(before_nines)
        raised = before_nines[:-1] + str(int(before_nines[-1]) + 1) if before_nines else "1"
        digits = raised + "0" * nines
    integer_length = len(digits) - decimals
    return digits[:integer_length], digits[integer_length:]


def _fill_in(template, text):
    """Returns the printf template with the text in place of its one %s, if it has one."""
    has_place = "%" in template.replace("%%", "")
    return template % ((text,) if has_place else ())


def _count_while(text, is_wanted):
    count = 0
    while count < len(text) and is_wanted(text[count]):
        count += 1
    return count


def _count_digits(text):
    return _count_while(text, lambda character: character in DIGITS)


def _split_digits(text):
    count = _count_digits(text)
    return text[:count], text[count:]


def _up_to_first_zero(text):
    return text.partition("\0")[0]
