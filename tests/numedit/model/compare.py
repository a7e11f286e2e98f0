#!/usr/bin/env python3
"""compare.py DRIVER LOCALE COUNT: compares the library with its model on COUNT random cases.

DRIVER is the program number_driver. If the library and the model differ on a case, prints the smallest similar case.
With the same --seed, the cases are the same.
"""

import argparse
import dataclasses
import random
import sys

import library
import number_model
from library import Answers, Case
from number_cases import random_case
from number_model import NumberFormat

# The number of cases for each start of the driver. With larger batches, the driver starts less often.
BATCH = 5000


def model_answers(case, locale):
    number_format = case.number_format
    pointed_at = case.text.partition("\0")[0]
    return Answers(
        cut=number_model.cut_zeros(case.text, number_format, locale),
        grouped=number_model.group_digits(case.text, number_format),
        valid=number_model.validate_string(pointed_at, number_format, locale),
        input_valid=number_model.validate_input(pointed_at, number_format, locale),
        formatted=number_model.format_control_text(pointed_at, number_format, locale),
    )


def shrunken(case, still_differs):
    """Returns the smallest and simplest version of a case on which the library and the model still differ."""
    changed = True
    while changed:
        changed = False
        for smaller in _smaller_cases(case):
            if still_differs(smaller):
                case, changed = smaller, True
                break
    return case


def _smaller_cases(case):
    if case.is_null:
        yield dataclasses.replace(case, is_null=False)
    text = case.text
    length = len(text)
    while length > 0:
        for start in range(0, len(text) - length + 1, length):
            yield dataclasses.replace(case, text=text[:start] + text[start + length:])
        length //= 2
    for field in dataclasses.fields(NumberFormat):
        plain = getattr(PLAIN_FORMAT, field.name)
        if getattr(case.number_format, field.name) != plain:
            number_format = dataclasses.replace(case.number_format, **{field.name: plain})
            yield dataclasses.replace(case, number_format=number_format)
    for place, character in enumerate(text):
        if character not in "01":
            for plain in "01":
                yield dataclasses.replace(case, text=text[:place] + plain + text[place + 1:])


PLAIN_FORMAT = NumberFormat(
    pad_decimals=False, group_digits=False, trailing_minus=False, has_decimals=False, has_max_int_digits=False)


def report(case, from_library, from_model, locale_name, seed):
    print(f"The library and its model differ in locale {locale_name}, seed {seed}:")
    print(f"  text    {'null' if case.is_null else ascii(case.text)}")
    for field in dataclasses.fields(NumberFormat):
        value = getattr(case.number_format, field.name)
        if value != getattr(PLAIN_FORMAT, field.name):
            print(f"  {field.name} = {ascii(value)}")
    if not isinstance(from_library, Answers):
        print(f"  {from_library}")
        return
    for field in dataclasses.fields(Answers):
        of_library = getattr(from_library, field.name)
        of_model = getattr(from_model, field.name)
        if of_library != of_model:
            print(f"  {field.name}: library {_short(of_library)}, model {_short(of_model)}")


def _short(answer):
    shown = ascii(answer)
    return shown if len(shown) < 300 else f"{shown[:250]}... ({len(answer)} characters)"


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("driver")
    parser.add_argument("locale", help="for characters, and, behind a slash, another for numbers")
    parser.add_argument("count", type=int)
    parser.add_argument("--seed", type=int, default=20240607)
    arguments = parser.parse_args()
    locale = number_model.Locale(arguments.locale)
    rng = random.Random(arguments.seed)

    def differing_answer(case):
        """Returns the library's answers if they differ from the model's, or how its process ended; otherwise None."""
        try:
            (answers,) = library.ask(arguments.driver, arguments.locale, [case])
        except library.Died as died:
            return str(died)
        return answers if answers != model_answers(case, locale) else None

    accepted = 0
    for start in range(0, arguments.count, BATCH):
        cases = [random_case(rng, locale.point()) for _ in range(min(BATCH, arguments.count - start))]
        expected = [model_answers(case, locale) for case in cases]
        accepted += sum(answers.valid for answers in expected)
        try:
            found = library.ask(arguments.driver, arguments.locale, cases)
            differing = next((case for case, a, b in zip(cases, found, expected) if a != b), None)
        except library.Died as died:
            differing = cases[min(died.index, len(cases) - 1)]
            if not differing_answer(differing):
                raise
        if differing:
            smallest = shrunken(differing, differing_answer)
            report(smallest, differing_answer(smallest), model_answers(smallest, locale), arguments.locale,
                   arguments.seed)
            return 1
    print(f"{arguments.count} cases agree in locale {arguments.locale}, {accepted} of them accepted numbers")
    return 0


if __name__ == "__main__":
    sys.exit(main())
