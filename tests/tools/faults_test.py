#!/usr/bin/python3
"""Where tools/mutate finds faults to put into a source, what it puts there, and what it leaves alone."""

import pathlib
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools"))
from mutations import faults  # noqa: E402
from mutations.copies import Copy  # noqa: E402


def written(kind, text):
    """The text with each fault of that kind in it."""
    found = [fault for fault in faults.find(text) if fault.kind == kind]
    return [text[: one.start] + other + text[one.end :] for one in found for other in one.alternatives]


class Faults(unittest.TestCase):
    def test_an_operator_is_exchanged_for_its_neighbour(self):
        self.assertEqual(written("operator", "x = a < b;"), ["x = a <= b;", "x = a >= b;"])
        self.assertEqual(written("operator", "x = !a && b;"), ["x = a && b;", "x = !a || b;"])
        self.assertEqual(written("operator", "++x;"), ["--x;"])
        self.assertEqual(written("operator", "x = true;"), ["x = false;"])

    def test_what_is_no_operator_is_left_alone(self):
        self.assertEqual(written("operator", "std::vector<int> a(const A* b, C&& d); // a == b"), [])
        self.assertEqual(written("operator", '#if A == B\nconst char* a = "a == b";'), [])

    def test_a_constant_is_off_by_one(self):
        self.assertEqual(written("constant", "x = 500ms;"), ["x = 501ms;", "x = 499ms;"])
        self.assertEqual(written("constant", "x = 0;"), ["x = 1;"])
        self.assertEqual(written("constant", "x = 0x20;"), ["x = 0x21;"])
        self.assertEqual(written("constant", "x = 15.0;"), ["x = 16.0;"])

    def test_a_text_is_another_but_the_name_of_a_control_stays(self):
        self.assertEqual(written("text", 'Say("Error", \'M\');'), ['Say("Error~", \'M\');', "Say(\"Error\", '~');"])
        self.assertEqual(written("text", 'Label lblTime{*this, "lblTime"};'), [])

    def test_a_condition_is_negated(self):
        self.assertEqual(written("negation", "if (a) b();"), ["if (!(a)) b();"])
        self.assertEqual(written("negation", "if (int a = f(); a > 1) b();"), ["if (int a = f(); !(a > 1)) b();"])

    def test_a_statement_is_dropped_and_a_declaration_is_not(self):
        self.assertEqual(written("statement", "void f() { a(); b = 1; }"),
                         ["void f() { ; b = 1; }", "void f() { a(); ; }"])
        self.assertEqual(written("statement", "void f() { if (a) return; }"), ["void f() { if (a) ; }"])
        self.assertEqual(written("statement", "void f() { switch (a) { case 1: b(); } }"),
                         ["void f() { switch (a) { case 1: ; } }"])
        self.assertEqual(written("statement", "void f() { for (;;) { return 1; } long long c = 2; }"), [])
        self.assertEqual(written("statement", "void f() { const int a = 1; std::string b(c); A& d = e(); }"), [])
        self.assertEqual(written("statement", "class A { int a_ = 1; void f(); };"), [])

    def test_neighbouring_arguments_are_exchanged_and_parameters_are_not(self):
        self.assertEqual(written("arguments", "x = f(a, g(b, c));"), ["x = f(g(b, c), a);", "x = f(a, g(c, b));"])
        self.assertEqual(written("arguments", "f(a, a); void g(int a, const A& b);"), [])

    def test_a_result_is_an_empty_one(self):
        self.assertEqual(written("result", "int f() { return a + b; }"), ["int f() { return {}; }"])
        self.assertEqual(written("result", "int f() { return 0; }"), [])


class Copies(unittest.TestCase):
    def test_the_file_is_whole_again_whatever_becomes_of_the_fault(self):
        for result in ("a failure", "", None, RuntimeError()):
            with tempfile.TemporaryDirectory() as folder, self.subTest(result=result):
                copy = Copy(pathlib.Path(folder), pathlib.Path(folder), 1, 1)
                (copy.tree / "playlist").mkdir(parents=True)
                place = copy.tree / "playlist" / "a.cpp"
                place.write_text("whole")

                def look(path):
                    self.assertEqual(place.read_text(), "fault")
                    if isinstance(result, Exception):
                        raise result
                    return result

                copy._outcome = look
                try:
                    self.assertEqual(copy.outcome("playlist/a.cpp", "fault"), result)
                except RuntimeError:
                    pass
                self.assertEqual(place.read_text(), "whole")


    def test_a_program_ends_by_its_own_time_and_not_by_the_clocks(self):
        with tempfile.TemporaryDirectory() as folder:
            copy = Copy(pathlib.Path(folder), pathlib.Path(folder), 1, 1)
            for script, failure in (("sleep 2", ""), ("while :; do :; done", "program does not end"),
                                    ("echo '[  FAILED  ] A.B (0 ms)'; exit 1", "program A.B"),
                                    ("exit 3", "program ends with 3")):  # fmt: skip
                program = pathlib.Path(folder) / "program"
                program.write_text(f"#!/bin/sh\n{script}\n")
                program.chmod(0o755)
                with self.subTest(script=script):
                    self.assertEqual(copy._run_tests(program, [], 1), failure)


if __name__ == "__main__":
    unittest.main()
