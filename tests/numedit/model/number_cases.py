"""Makes random formats and texts. The same seed makes the same ones."""

import math

from library import Case
from number_model import NumberFormat

POINTS = [".", ",", "\u066b"]
ODD_POINTS = ["0", "5", "9", "e", "E", "-", "+", " ", "x", "%", "\0", "\u2003", "\u0665", "\ud800", "\U0010ffff"]
SEPARATORS = [",", ".", "\u066c", "\u202f", "'", " "]
ODD_SEPARATORS = ["\0", "0", "7", "-", "e", "%", "\U0010ffff"]
TEMPLATES = ["%s kg", "\u20ac%s", "%s %%", "%%s %s", "[%12s]", "[%-12s]", "[%.3s]", "", "none", "100 %%"]
COUNTS = [0, 1, 2, 3, 4, 5, 6, 8, 20, 1000]
HUGE_COUNTS = [2**31, 2**32, 2**63 - 1, 2**63, 2**64 - 2, 2**64 - 1]
BOUNDS = [0.0, -0.0, 1.0, -1.0, 0.5, 0.05, 5.0, 12.0, 99.0, 1000.0, -1000.0, 1e5, 1e300, -1e300, 5e-324]
ODD_BOUNDS = [math.nan, math.inf, -math.inf]
BLANKS = [" ", "\t", "\n", "\v", "\f", "\r", "\u2003", "\u3000", "\u1680", "\u2028"]
# Blanks that iswspace() rejects, digits that iswdigit() rejects, a minus sign beyond ASCII, and the ASCII neighbours of
# the digits.
LOOKALIKES = ["\u00a0", "\u202f", "\u200b", "\ufeff", "\u0665", "\u0967", "\uff11", "\u00b2", "\u2212", "/", ":"]
WORDS = ["inf", "nan", "-infinity", "0x1F", "0x1p3", "1e400", "-1e-400", "1e+", "1-5", "12+5", "--1", "+-1", "1e5e5"]
SOUP = list("0123456789" "000599" "..,,++--eeEE  xX%'n") + POINTS + BLANKS + LOOKALIKES


def random_case(rng, locale_point):
    number_format = random_format(rng, locale_point)
    if rng.random() < 0.002:
        return Case(number_format, "", is_null=True)
    return Case(number_format, random_text(rng, number_format, locale_point))


def random_format(rng, locale_point):
    def count():
        return rng.choice(HUGE_COUNTS) if rng.random() < 0.1 else rng.choice(COUNTS)

    def bound():
        pick = rng.random()
        return rng.choice(ODD_BOUNDS) if pick < 0.15 else rng.choice(BOUNDS) if pick < 0.7 else rng.uniform(-200, 200)

    def flag():
        return rng.random() < 0.5

    number_format = NumberFormat(
        pad_decimals=flag(),
        round_decimals=flag(),
        allow_sign=rng.random() < 0.8,
        group_digits=flag(),
        trailing_minus=flag(),
        allow_exponent=flag(),
        decimal_point=_point(rng, locale_point),
        thousands_sep=rng.choice(ODD_SEPARATORS if rng.random() < 0.15 else SEPARATORS),
        template="%s" if rng.random() < 0.8 else rng.choice(TEMPLATES),
        has_decimals=rng.random() < 0.8,
        decimals=count(),
        has_max_int_digits=rng.random() < 0.4,
        max_int_digits=count(),
        has_min=rng.random() < 0.2,
        min=bound(),
        has_max=rng.random() < 0.2,
        max=bound(),
    )
    # Padding a million zeros is slow, so only a few cases do it.
    if number_format.decimals > 1000 and number_format.pad_decimals and rng.random() < 0.98:
        number_format.pad_decimals = False
    return number_format


def random_text(rng, number_format, locale_point):
    pick = rng.random()
    if pick < 0.70:
        text = _number(rng, number_format, locale_point)
        for _ in range(rng.choice([0, 0, 0, 1, 1, 2])):
            text = _mutated(rng, text)
        return text
    if pick < 0.85:
        soup = SOUP + 4 * [number_format.decimal_point, number_format.thousands_sep]
        return "".join(rng.choice(soup) for _ in range(rng.randrange(12)))
    if pick < 0.95:
        return _beginning_of_zero(rng, number_format)
    if pick < 0.98:
        return rng.choice(WORDS)
    return _number(rng, number_format, locale_point, longest=rng.choice([100, 1000, 3000]))


def _point(rng, locale_point):
    if rng.random() < 0.15:
        return rng.choice(ODD_POINTS)
    return rng.choice(POINTS + [locale_point[:1] or "."])


def _digits(rng, longest):
    # Nines, fives and zeros are frequent, because they lead to carries, to rounding and to trimming.
    alphabet = rng.choice(["0123456789", "0123456789", "09", "0", "9", "499995"])
    return "".join(rng.choice(alphabet) for _ in range(rng.randint(0, longest)))


def _number(rng, number_format, locale_point, longest=9):
    def sometimes(share, text):
        return text if rng.random() < share else ""

    def blanks():
        return sometimes(0.15, "".join(rng.choice(BLANKS) for _ in range(rng.randint(1, 3))))

    point = rng.choice([number_format.decimal_point, number_format.decimal_point, locale_point, rng.choice(POINTS)])
    return "".join([
        blanks(),
        sometimes(0.1, "00"),
        sometimes(0.35, rng.choice("+---")),
        sometimes(0.15, "00"),
        _digits(rng, longest),
        sometimes(0.7, point + _digits(rng, longest)),
        sometimes(0.25, sometimes(0.9, rng.choice("eE")) + sometimes(0.5, rng.choice("+-")) + _digits(rng, 4)),
        blanks(),
    ])


def _beginning_of_zero(rng, number_format):
    zeros = rng.choice([0, 1, 2, 3, 5, 6, min(number_format.decimals, 1000), min(number_format.decimals, 1000) + 1])
    return rng.choice(["", "0", "0", "0", "00", "-0", "+"]) + rng.choice(["", *4 * [number_format.decimal_point]]) + (
        "0" * zeros) + rng.choice(["", "", "", "", "5"])


def _mutated(rng, text):
    place = rng.randint(0, len(text))
    character = rng.choice(SOUP + ODD_POINTS)
    pick = rng.random()
    if pick < 0.5:
        return text[:place] + character + text[place:]
    if pick < 0.75:
        return text[:place] + text[place + 1:]
    return text[:place] + character + text[place + 1:]
