#!/usr/bin/env python3
"""round_half_up.py DRIVER COUNT: compares the rounding of FormatControlText() with Python's decimal arithmetic.

Rounds and pads COUNT random numbers to a random number of decimals, and groups the digits of half of them.
"""

import argparse
import decimal
import random
import sys

import library
from library import Case
from number_model import NumberFormat

BATCH = 10000


def random_decimal(rng):
    """Returns a number as it is typed: without a needless zero in front, often with digits that cause a carry."""
    longest = 400 if rng.random() < 0.01 else 12
    alphabet = rng.choice(["0123456789", "0123456789", "9", "49", "5", "09"])

    def digits(shortest):
        return "".join(rng.choice(alphabet) for _ in range(rng.randint(shortest, longest)))

    integer = digits(1).lstrip("0") or "0"
    fraction = digits(0)
    return rng.choice(["", "", "-", "+"]) + integer + ("." + fraction if fraction or rng.random() < 0.1 else "")


def random_case(rng):
    number_format = NumberFormat(
        round_decimals=True, pad_decimals=True, group_digits=rng.random() < 0.5, trailing_minus=False,
        decimals=rng.choice([0, 0, 1, 2, 2, 3, 4, 6, 9, 12, 20, 200]))
    return Case(number_format, random_decimal(rng))


def expected_text(case):
    number_format = case.number_format
    rounded = decimal.Decimal(case.text).quantize(
        decimal.Decimal(1).scaleb(-number_format.decimals), rounding=decimal.ROUND_HALF_UP)
    return format(rounded, ",f" if number_format.group_digits else "f")


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("driver")
    parser.add_argument("count", type=int)
    parser.add_argument("--seed", type=int, default=20240607)
    arguments = parser.parse_args()
    decimal.getcontext().prec = 2000
    rng = random.Random(arguments.seed)

    raised = 0
    for start in range(0, arguments.count, BATCH):
        cases = [random_case(rng) for _ in range(min(BATCH, arguments.count - start))]
        for case, answers in zip(cases, library.ask(arguments.driver, "C", cases)):
            expected = expected_text(case)
            raised += abs(decimal.Decimal(expected.replace(",", ""))) > abs(decimal.Decimal(case.text))
            if answers.formatted != expected:
                print(f"{case.text} with {case.number_format.decimals} decimals: {answers.formatted}, not {expected}")
                return 1
    print(f"{arguments.count} decimals agree, {raised} of them rounded away from zero")
    return 0


if __name__ == "__main__":
    sys.exit(main())
