/* The two-dimensional DFT of blocks of a picture: two batches for each block, rows and then columns. The blocks are
   read where they are in the picture. Each result is held against the definition. */
#include <math.h>
#include <stdio.h>

#include "zulgenpx_batch.h"

enum { width = 192, height = 128, largest = 64 };

static Zulg64fc picture[height * width], block[largest * largest];

static double brightness(int row, int column) {
    return 0.5 + 0.25 * sin(0.21 * row) * cos(0.13 * column) + ((row / 16 + column / 24) % 2 == 0 ? 0.2 : 0.0);
}

/* Bin (u, v) of the block of size N that begins at a row and a column. */
static Zulg64fc bin(int N, int row, int column, int u, int v) {
    const double pi = 3.14159265358979323846;
    Zulg64fc sum = {0, 0};
    for (int i = 0; i < N; ++i) {
        for (int k = 0; k < N; ++k) {
            const double turn = -2 * pi * (double)((u * i + v * k) % N) / N;
            sum.re += brightness(row + i, column + k) * cos(turn);
            sum.im += brightness(row + i, column + k) * sin(turn);
        }
    }
    return sum;
}

int main(void) {
    for (int row = 0; row < height; ++row)
        for (int column = 0; column < width; ++column) picture[row * width + column].re = brightness(row, column);

    for (int N = 8; N <= largest; N *= 2) {
        double worst = 0;
        for (int row = 0; row + N <= height; row += N) {
            for (int column = 0; column + N <= width; column += N) {
                const Zulg64fc* const corner = picture + row * width + column;
                /* Rows: neighbours within a row, one row of the picture from transform to transform. */
                if (zulgBatchDFTFwd_CToC_64fc(corner, 1, width, block, 1, N, N, NoDivByAny, N) != StatusOk) return 1;
                /* Columns, side by side and in place. */
                if (zulgBatchDFTFwd_CToC_64fc(block, N, 1, block, N, 1, N, NoDivByAny, N) != StatusOk) return 1;
                for (int place = 0; place < N * N; place += N * N / 4 + 3) {
                    const Zulg64fc due = bin(N, row, column, place / N, place % N);
                    worst = fmax(worst, hypot(block[place].re - due.re, block[place].im - due.im) / (N * N));
                }
            }
        }
        printf("%2d x %2d: %d blocks, greatest error %.1e\n", N, N, height / N * (width / N), worst);
        if (worst > 1e-14) return 1;
    }
    return 0;
}
