#!/usr/bin/env python3
"""Tests the model on examples that were worked out by hand."""

import unittest

import number_model
from number_model import Locale, NumberFormat

LOCALE = Locale("C")


def fixed(**fields):
    return NumberFormat(**fields)


def plain(**fields):
    """Returns the locale preset of the C locale, with some fields changed."""
    preset = dict(pad_decimals=False, group_digits=False, trailing_minus=False, thousands_sep="\0",
                  has_decimals=False, has_max_int_digits=False)
    return NumberFormat(**{**preset, **fields})


def rounding(decimals):
    return plain(round_decimals=True, has_decimals=True, decimals=decimals)


class CutZeros(unittest.TestCase):
    def test_gives(self):
        for text, expected in [
            (" 000.500 ", "0.5"), ("1.500e10", "1.5e10"), ("10", "10"), ("1.0", "1"), (".", "0"), ("", "0"),
            (" \t ", "0"), ("-0.0", "-0"), ("-.5", "-.5"), ("-007", "-007"), ("0", "0"), ("00", "0"), ("0001", "1"),
            ("100.000", "100"), ("1e05", "1e05"), ("000 ", "0"), ("0.50E0", "0.5E0"), ("e5", "0e5"),
            # All text in front of the exponent is the mantissa. If the mantissa contains a point, the zeros at the end
            # of the mantissa are cut.
            ("1.x00", "1.x"), ("\u20031\u3000", "\u20031\u3000"),
        ]:
            with self.subTest(text=text):
                self.assertEqual(number_model.cut_zeros(text, fixed(), LOCALE), expected)

    def test_another_point(self):
        comma = fixed(decimal_point=",")
        self.assertEqual(number_model.cut_zeros("1,50", comma, LOCALE), "1,5")
        self.assertEqual(number_model.cut_zeros("1.50", comma, LOCALE), "1.50")

    def test_a_zero_for_a_point(self):
        zero = fixed(decimal_point="0")
        self.assertEqual(number_model.cut_zeros("100", zero, LOCALE), "1")
        self.assertEqual(number_model.cut_zeros("0", zero, LOCALE), "0")


class GroupDigits(unittest.TestCase):
    def test_gives(self):
        for text, expected in [
            ("1234567.891", "1,234,567.891"), ("123", "123"), ("1234", "1,234"), (".5", ".5"), ("", ""),
            ("-123", "-,123"), ("1234e5", "123,4e5"), ("123456.7.8901", "123,456.7.8901"), ("12\x00345", "12"),
        ]:
            with self.subTest(text=text):
                self.assertEqual(number_model.group_digits(text, fixed()), expected)

    def test_no_separator(self):
        self.assertEqual(number_model.group_digits("1234", fixed(thousands_sep="\0")), "1")
        self.assertEqual(number_model.group_digits("1234567.5", fixed(thousands_sep="\0")), "1")
        self.assertEqual(number_model.group_digits("123.5", fixed(thousands_sep="\0")), "123.5")


class Validation(unittest.TestCase):
    def check(self, number_format, valid, invalid, validate=number_model.validate_string):
        for texts, expected in ((valid, True), (invalid, False)):
            for text in texts:
                with self.subTest(text=text):
                    self.assertEqual(validate(text, number_format, LOCALE), expected)

    def test_fixed(self):
        self.check(fixed(), ["12345.67", "-1.5", "+.5", "", "-", "+", "1.", "."],
                   ["123456", "1.234", "1,234.00", "1.00-", "1e5", " 1", "1 ", "--1", "\u0665"])

    def test_without_decimals(self):
        self.check(plain(), ["123456789"], ["1.5", "1.", "."])
        self.check(fixed(decimals=0), ["1"], ["1.5", "1."])

    def test_exponent(self):
        self.check(fixed(allow_exponent=True), ["1e", "1e-", "1E+10", "1-5", "12+5", "1.e5", ".e5", "1e99999"],
                   ["-e5", "e5", "1x", "1e5.", "1e--5", "-+5"])

    def test_lowest(self):
        lowest = fixed(has_min=True, min=1.0)
        self.check(lowest, ["1", "1.00", "2"], ["", "0.5", "0", "-", "-1"])
        self.check(lowest, ["0", "0.", "0.0", "0.00", ".", "1"], ["0.000", "0.5", ""], number_model.validate_input)

    def test_bounds(self):
        self.check(fixed(has_max=True, max=5.0), ["5", "5.00", "-9"], ["5.01", "6"])
        self.check(fixed(has_max=True, max=float("nan"), has_min=True, min=float("nan")), ["0", "99999"], ["x"])
        self.check(fixed(has_min=True, min=2.0, has_max=True, max=1.0), [], ["", "0", "1", "1.5", "2"])

    def test_no_sign(self):
        self.check(fixed(allow_sign=False), ["1"], ["-1", "+1", "-"])

    def test_another_point(self):
        comma = fixed(decimal_point=",", has_max=True, max=1.5)
        self.check(comma, ["1,5", "1.5"], ["1,51", "1.51"])

    def test_huge_counts(self):
        huge = fixed(decimals=2**64 - 1, max_int_digits=2**64 - 1)
        self.check(huge, ["1" * 5000 + "." + "2" * 5000], ["1x"])
        self.check(huge, ["0." + "0" * 5000], [], number_model.validate_input)


class FormatControlText(unittest.TestCase):
    def check(self, number_format, examples):
        for text, expected in examples:
            with self.subTest(text=text):
                self.assertEqual(number_model.format_control_text(text, number_format, LOCALE), expected)

    def test_fixed(self):
        self.check(fixed(), [
            ("1234.5", "1,234.50"), ("1234", "1,234.00"), ("-1234.567", "1,234.567-"), ("0.5", "0.50"), (".5", "0.50"),
            ("007", "7.00"), ("-", ".00-"), ("+", ".00"), ("-.5", ".50-"), ("1e5", "1e5"), ("12abc", "12"),
            ("1,234", "1"), ("-1.5e3", "1.5-e3"), ("1.5e+3x", "1.5e+3"), ("1.5e", "1.5e"), ("", "")])

    def test_rounding(self):
        self.check(rounding(2), [("1.234", "1.23"), ("1.235", "1.24"), ("9.996", "10.00"), ("-0.999", "-1.00"),
                                 ("1.239e5", "1.24e5"), ("1.999x", "2.00"), ("1.2", "1.2")])
        self.check(rounding(0), [("2.5", "3"), ("9.5", "10"), ("5.", "5"), ("-.5", "-1"), ("-.4", "-"), ("5.x", "5")])
        self.check(plain(round_decimals=True), [("1.239", "1.239")])

    def test_template(self):
        self.check(fixed(template="%s kg"), [("", ""), ("3", "3.00 kg")])
        self.check(plain(template="%s kg"), [("3", "3 kg")])
        self.check(plain(template="%%"), [("3", "%")])

    def test_plain(self):
        self.check(plain(), [("1234.50", "1234.5"), ("0010", "10")])

    def test_another_point(self):
        self.check(fixed(decimal_point=","), [("1.5", "1,50"), ("1,5", "1,50")])

    def test_no_separator_cuts_before_the_sign(self):
        self.check(plain(group_digits=True), [("-1234.5", "-1"), ("1234e5", "1e5")])

    def test_padding_has_an_end(self):
        padded = number_model.format_control_text("1.5", fixed(decimals=2**64 - 1), LOCALE)
        self.assertEqual(padded, "1.5" + "0" * 1_000_000)


if __name__ == "__main__":
    unittest.main()
