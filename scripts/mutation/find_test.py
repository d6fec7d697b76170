#!/usr/bin/env python3
"""Tests of the changes that find.py finds."""

import pathlib
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent))

from mutation.find import changed, find  # pylint: disable=wrong-import-position


def afters(source, operator=None):
    return [mutant.after for mutant in find("room/File.cpp", source)
            if operator in (None, mutant.operator)]


class FindTest(unittest.TestCase):
    def test_a_comparison_takes_or_leaves_its_bound(self):
        self.assertEqual(["if (a <= b) {"], afters("if (a < b) {"))
        self.assertEqual(["if (a != b && c) {", "if (a == b || c) {"], afters("if (a == b && c) {"))

    def test_angle_brackets_are_no_comparison(self):
        self.assertEqual([], afters("std::vector<int> Values(const T&& a);"))

    def test_a_condition_without_an_operator_is_turned_whole(self):
        self.assertEqual(["if (!(IsOpen(file))) return;"], afters("if (IsOpen(file)) return;", "condition"))
        self.assertEqual(["if (IsOpen(file)) return;"], afters("if (!IsOpen(file)) return;", "condition"))

    def test_each_number_moves_by_one(self):
        self.assertEqual(["int a = f(2, 0x1F);", "int a = f(1, 0x20);"], afters("int a = f(1, 0x1F);"))
        self.assertEqual(["x = 10001;"], afters("x = 10'000;", "bound"))
        self.assertEqual(["x = 2.5F;"], afters("x = 1.5F;", "bound"))
        self.assertEqual(["a = b - c;"], afters("a = b + c;", "bound"))

    def test_only_whole_statements_are_dropped(self):
        self.assertEqual(["{}"], afters("{\n  Close(file);", "drop"))
        self.assertEqual([], afters("Call(first,\n  Close(file));", "drop"))
        self.assertEqual([], afters("{\n  return Close(file);", "drop"))
        self.assertEqual([], afters("{\n  int a = Close(file);", "drop"))
        self.assertEqual(["{}"], afters("{\n  a_ = b;", "drop"))

    def test_a_text_changes_in_one_letter_and_no_escape(self):
        self.assertEqual(['f("abqd");'], afters('f("abcd");'))
        self.assertEqual([], afters(r'f("\n%d\x41");', "text"))
        self.assertEqual([r"f('b', '\n');"], afters(r"f('a', '\n');"))

    def test_a_cell_takes_its_neighbours_name(self):
        self.assertEqual(['{"a", kTwo},', '{"b", kOne},'],
                         afters('    {"a", kOne},\n    {"b", kTwo},', "cell"))

    def test_comments_includes_and_what_the_compiler_checks_stay(self):
        self.assertEqual([], afters('// if (a < 1)\n/* b == 2\n c */\n#include "a/b.h"\n'
                                    "static_assert(a ==\n  4);\nusing a = b<3>;"))
        self.assertEqual([], afters('f(R"(a < 1 "b")");'))

    def test_only_the_line_changes(self):
        source = "a = 1;\nb = 2;\n"
        second = find("room/File.cpp", source)[1]
        self.assertEqual("a = 1;\nb = 3;\n", changed(source, second))
        self.assertEqual("room/File.cpp:2:bound", second.name)

    def test_the_order_does_not_look_at_where_a_line_stands(self):
        before = find("room/File.cpp", "a = 1;\na = 1;\n")
        after = find("room/File.cpp", "\n// new\na = 1;\nint c;\na = 1;\n")
        self.assertEqual([m.rank(1) for m in before], [m.rank(1) for m in after])
        self.assertNotEqual(before[0].rank(1), before[1].rank(1))
        self.assertNotEqual(before[0].rank(1), before[0].rank(2))


if __name__ == "__main__":
    unittest.main()
