#!/usr/bin/env python3
"""The comparison of pages finds what a row hides."""

import unittest

import cells
import made_claims
from page_words import Word, hidden

PAGE = [Word("Name", 40, 100), Word("Leeds", 40, 112), Word("LS6", 40, 124)]


class Hidden(unittest.TestCase):
    def test_equal_pages_hide_nothing(self):
        self.assertEqual(hidden([PAGE], [list(PAGE)]), [])

    def test_a_word_more_where_rows_grow_is_missing(self):
        self.assertEqual(hidden([PAGE[:2]], [PAGE]), ["page 1: ['LS6'] missing, [] elsewhere"])

    def test_a_word_on_another_page_is_found(self):
        self.assertEqual(len(hidden([PAGE, []], [PAGE[:2], PAGE[2:]])), 2)

    def test_a_page_more_is_found(self):
        self.assertEqual(hidden([PAGE], [PAGE, []]), ["1 pages, 2 where rows grow"])

    def test_half_a_line_hidden_shows_in_what_stands_below(self):
        lower = [*PAGE[:2], PAGE[2]._replace(y=125)]
        self.assertEqual(hidden([PAGE], [lower]), ["page 1: a row grows above ['LS6']"])

    def test_one_of_two_equal_words_that_is_missing_is_found(self):
        self.assertEqual(len(hidden([PAGE], [[*PAGE, Word("Leeds", 40, 136)]])), 1)


class Broken(unittest.TestCase):
    def test_a_word_may_be_broken_at_its_hyphens(self):
        shown = {"www.hartwell-": 1, "disrepair/2026": 1}.get
        parts = cells.PARTS.findall("www.hartwell-disrepair/2026")
        self.assertTrue(cells.stands_in_parts(parts, lambda word: shown(word, 0)))
        self.assertFalse(cells.stands_in_parts(parts, lambda word: word == "www.hartwell-dis"))

    def test_a_long_word_with_a_slash_may_be_cut_anywhere(self):
        # The whole address is 2,388 twips wide, its longest part between two hyphens 1,641.
        self.assertFalse(cells.fits("www.hartwell-disrepair.example/2026/bundle", False, 2351))
        self.assertTrue(cells.fits("www.hartwell-disrepair.example/2026/bundle", False, 2450))
        self.assertTrue(cells.fits("www.hartwell-disrepair.example", False, 2351))

    def test_words_are_measured_in_the_smallest_type(self):
        # 833 + 556 + 333 + 222 + 556 + 556 + 222 + 222 + 556 thousandths of an em of 120 twips
        self.assertAlmostEqual(cells.width("Maribelle", False), 486.7, delta=0.5)


class Claims(unittest.TestCase):
    def test_what_is_within_a_box_takes_no_more_lines_than_it_has(self):
        for number in range(200):
            writer = made_claims.Writer(made_claims.random.Random(number))
            text = writer.within(75, 5, made_claims.FULL_WIDTH)
            self.assertLessEqual(len(text), 75)
            self.assertLessEqual(len(text.splitlines()), 5)


if __name__ == "__main__":
    unittest.main()
