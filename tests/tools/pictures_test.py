# Pictures, by their pixels.
import math

from definitions import FAMILIES, cosine, dct4_cosine, pattern
import sound_files
from tool import ToolTest, main, numbers


# The margins around the plot of a picture.
LEFT, TOP, RIGHT, BOTTOM = 72, 40, 112, 44


def brightness(point):
    return 2 * point[0] + 7 * point[1] + point[2]


class Pictures(ToolTest):
    def plot(self, data, columns, bins):
        """The plot without its margins, checked for its size, and the pixels of one column and of one bin."""
        rows = sound_files.png_rows(data)
        bins = bins if bins <= 512 else 512  # neighbours share a row, the same number in each row at the lengths here
        across, down = -(-768 // columns), 512 // bins
        self.assertEqual((len(rows[0]), len(rows)), (LEFT + columns * across + RIGHT, TOP + bins * down + BOTTOM))
        return [row[LEFT:LEFT + columns * across] for row in rows[TOP:TOP + bins * down]], across, down

    def brightest(self, plot, across, down, column):
        line = [brightness(plot[y][column * across + across // 2]) for y in range(down // 2, len(plot), down)]
        return len(line) - 1 - line.index(max(line))

    def test_bright_row_is_the_bin_and_time_goes_right(self):
        n = 16
        samples = [round(9000 * x) for k in (2, 7) for x in cosine(n, k, 5 * n)]
        path, out = self.path("two.wav", sound_files.wav([samples], rate=16000)), self.path("two.png")
        for family in FAMILIES:
            self.assertEqual(self.ok(path, "--length", n, "--family", family, "--output", out), b"")
            with open(out, "rb") as file:
                plot, across, down = self.plot(file.read(), columns=10, bins=9)
            self.assertEqual([self.brightest(plot, across, down, c) for c in range(10)], [2] * 5 + [7] * 5)

    def test_rows_are_in_the_order_of_sequency(self):
        n = 16
        patterns = [pattern(k, n) for k in range(n)]
        plot, across, down = self.plot(self.ok("-", "--family", "wht", "--order", 4, "--format", "png",
                                               given=numbers(sum(patterns, []))), columns=n, bins=n)
        for column, signs in enumerate(patterns):
            changes = sum(a != b for a, b in zip(signs, signs[1:]))
            self.assertEqual(self.brightest(plot, across, down, column), changes)

    def test_rows_of_the_dct4(self):
        n = 16
        plot, across, down = self.plot(self.ok("-", "--family", "dct4", "--length", n, "--format", "png",
                                               given=numbers(sum((dct4_cosine(k, n) for k in range(n)), []))),
                                       columns=n, bins=n)
        self.assertEqual([self.brightest(plot, across, down, column) for column in range(n)], list(range(n)))

    def test_many_bins_share_rows(self):
        n = 4096
        tones = [dct4_cosine(k, n) for k in (5, 1000, 4095)]
        # All power in one bin of eight, or in equal parts in all eight: the rows are alike.
        tones.append([math.sqrt(8) * x for x in dct4_cosine(803, n)])
        tones[3] = [x + sum(y) for x, *y in zip(tones[3], *(dct4_cosine(k, n) for k in range(2400, 2408)))]
        plot, across, down = self.plot(self.ok("-", "--family", "dct4", "--length", n, "--format", "png",
                                               given=numbers(sum(tones, []))), columns=4, bins=n)
        self.assertEqual([self.brightest(plot, across, down, column) for column in range(3)], [0, 125, 511])
        rows = [line[-1] for line in plot]
        self.assertEqual(rows[511 - 100], rows[511 - 300])
        self.assertEqual([y for y in range(512) if brightness(rows[y]) > brightness(rows[0]) + 100],
                         [511 - 300, 511 - 100])

    def test_words_and_marks_of_the_axis(self):
        """The marks are left of the plot; their distances tell what is numbered."""
        def marks(*arguments):
            rows = sound_files.png_rows(self.ok("-", "--format", "png", *arguments, given=b"1 " * 1024))
            light = [y for y in range(TOP - 8, len(rows) - BOTTOM + 8) if brightness(rows[y][LEFT - 5]) > 1500]
            return [y for y in light if y - 1 not in light], rows[:TOP - 10]
        wht, sequency = marks("--family", "wht", "--order", 10)
        self.assertEqual(wht, [TOP + 512 - 1 - y for y in (500, 400, 300, 200, 100, 0)])  # 1000 .. 0, two to a row
        small, _ = marks("--family", "wht", "--order", 1)
        self.assertEqual(len(small), 2)  # 0 and 1: there are no halves of sequencies
        dct4, cycles = marks("--family", "dct4", "--length", 1024)
        self.assertEqual(len(dct4), 11)  # 0, 0.05 .. 0.5 at the upper edge
        self.assertEqual((dct4[0], dct4[-1]), (TOP - 1, TOP + 512 - 1))
        self.assertNotEqual(sequency, cycles)

    def test_pixels_of_a_bin_are_alike(self):
        plot, across, down = self.plot(self.ok("-", "--length", 8, "--format", "png", given=numbers(cosine(8, 1, 24))),
                                       columns=3, bins=5)
        tone = {plot[y][x] for y in range(3 * down, 4 * down) for x in range(len(plot[0]))}
        rest = {plot[y][x] for y in range(0, 3 * down) for x in range(len(plot[0]))}
        self.assertEqual((len(tone), len(rest)), (1, 1))
        self.assertGreater(brightness(tone.pop()), brightness(rest.pop()) + 1000)

    def test_many_frames_share_columns(self):
        n = 4
        samples = cosine(n, 0, 5000 * n) + cosine(n, 2, 5000 * n)
        # 10000 frames, eight to a column.
        plot, across, down = self.plot(self.ok("-", "--length", n, "--format", "png", given=numbers(samples)),
                                       columns=1250, bins=3)
        self.assertEqual([self.brightest(plot, across, down, c) for c in (0, 1, 624, 625, 1248, 1249)],
                         [0, 0, 0, 2, 2, 2])

    def test_mean_power_of_a_partial_column(self):
        n = 2
        # 1537 frames: pairs, and a last column with one frame, of the same level.
        plot, across, down = self.plot(self.ok("-", "--length", n, "--format", "png", given=b"1 1 " * 1537),
                                       columns=769, bins=2)
        self.assertEqual(plot[-1][0], plot[-1][-1])

    def test_silence_is_dark(self):
        plot, _, _ = self.plot(self.ok("-", "--length", 4, "--format", "png", given=b"0 " * 8), columns=2, bins=3)
        colours = {point for row in plot for point in row}
        self.assertEqual(len(colours), 1)
        self.assertLess(max(colours.pop()), 60)


if __name__ == "__main__":
    main()
