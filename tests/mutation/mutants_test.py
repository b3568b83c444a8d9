"""What becomes of a source in the copy."""

import pathlib
import tempfile
import unittest

from mutants import Copy, altered_text


def copied(text, frozen=(), refused=()):
    """The copy of a source of that text, and its mutants."""
    with tempfile.TemporaryDirectory() as folder:
        root, target = pathlib.Path(folder, "root"), pathlib.Path(folder, "copy")
        (root / "sort").mkdir(parents=True)
        (root / "sort/one.h").write_text(text)
        copy = Copy(root, frozen, refused, ["sort"])
        copy.write(target)
        return (target / "sort/one.h").read_text(), copy


class Texts(unittest.TestCase):
    def test_one_character_changes(self):
        self.assertEqual(altered_text('"Alien"'), '"Aljen"')
        self.assertEqual(altered_text('"a b"'), '"a_b"')
        self.assertEqual(altered_text(r'"\r\n"'), r'"x\n"')
        self.assertEqual(altered_text(r'"\"a"'), r'"\"b"')
        self.assertEqual(altered_text('""'), '" "')


class Sources(unittest.TestCase):
    def test_literals_ask_which_value_they_have(self):
        text, _ = copied("int One() { return Two(true, 'a', 5); }")
        self.assertIn("mutation::At(1, true, !true)", text)
        self.assertIn("mutation::At(2, 'a', char('a' + 1))", text)
        self.assertIn("mutation::At(3, 5, 5 + 1)", text)

    def test_a_text_in_pieces_is_altered_piece_by_piece(self):
        text, copy = copied('auto One = "ab" "cd";')
        self.assertEqual(len(copy.mutants), 2)
        self.assertIn('mutation::Text(2, mutation::Text(1, "ab" "cd", "ac" "cd"), "ab" "ce")', text)

    def test_a_row_becomes_the_next_and_the_last_the_one_before(self):
        text, copy = copied("constexpr Row Rows[] = { {A}, {B}, {C} };")
        self.assertEqual([m.becomes for m in copy.mutants], ["{ B }", "{ C }", "{ B }"])
        self.assertTrue(text.startswith("const Row Rows[] = { mutation::At<Row>(1, Row{A}, Row{ B }),"))

    def test_a_lambda_is_no_table(self):
        _, copy = copied("constexpr std::array<char, 2> Two = [] { A; B; }();")
        self.assertEqual(copy.mutants, [])

    def test_what_must_stay_constant_is_left_out_and_named(self):
        text, copy = copied('static_assert(1 == 1);\nenum E { A = 7 };\nvoid F() { switch (x) { case 3: G(); } }\n'
                            '#define H "h"\nvirtual void I() = 0;\nchar J[9];\n'
                            '__attribute__((target("avx2"))) void K();')  # fmt: skip
        self.assertEqual(copy.mutants, [])
        self.assertEqual([why for *_, why in copy.left_out],
                         ["check", "check", "enum", "case", "directive", "pure", "frozen", "directive"])  # fmt: skip
        self.assertNotIn("static_assert", text)
        self.assertEqual(text.count("\n"), 6)

    def test_the_numbers_of_a_type_are_left_out(self):
        _, copy = copied("std::array<std::array<int, 256>, 4> one = Two(7);")
        self.assertEqual([m.was for m in copy.mutants], ["7"])

    def test_a_frozen_constant_stays_as_it_is(self):
        source = "inline constexpr int Width = 649;"
        _, copy = copied(source)
        text, copy = copied(source, frozen={copy.constants["sort/one.h"][0].key})
        self.assertEqual((text, copy.mutants), (source, []))

    def test_a_frozen_table_leaves_the_numbers_of_the_others(self):
        source = "constexpr int Rows[] = { One(), Two() };\nint One() { return 5; }\nconstexpr int More[] = { A(), B() };"
        _, copy = copied(source)
        numbers = {m.was: m.number for m in copy.mutants}
        _, frozen = copied(source, frozen={"sort/one.h:Rows"})
        self.assertEqual({m.was: numbers[m.was] for m in copy.mutants if m.line > 1}, {m.was: m.number for m in frozen.mutants})

    def test_a_refused_mutant_leaves_the_numbers_of_the_others(self):
        _, copy = copied("int One() { return 5 + 6; }")
        text, copy = copied("int One() { return 5 + 6; }", refused={copy.mutants[0].key})
        self.assertEqual([(m.number, m.was) for m in copy.mutants], [(2, "6")])
        self.assertIn("return 5 + mutation::At(2, 6, 6 + 1)", text)

    def test_a_mutant_knows_its_place_in_the_copy(self):
        text, copy = copied("int One() { return 5 + 6; }")
        begin, end = copy.mutants[1].span
        self.assertEqual(text[begin:end], "mutation::At(2, 6, 6 + 1)")


if __name__ == "__main__":
    unittest.main()
