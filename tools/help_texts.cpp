// What the help and the manual page say beyond the options.
#include "help_texts.h"

#define FAMILIES_TEXT                                                                                                  \
    "Families: complex is the DFT of all N bins; real is the DFT of real values, of the bins 0 to N/2, and the bins\n" \
    "above them mirror these; hartley is the Hartley transform, N real bins. Its magnitudes, of the bins k and N-k,\n" \
    "are those of the complex family but for the scale. wht is the Walsh-Hadamard transform of 2^O points, with\n"     \
    "--order O or --length of that many; its bins come in natural order, and instead of a frequency each has a\n"      \
    "sequency: how often its pattern of +1 and -1 changes sign. dct4 is the DCT-IV, N real bins, where N is a power\n" \
    "of two; the frequency of bin k is (k + 1/2)/(2N) cycles per sample.\n"                                            \
    "\n"                                                                                                               \
    "The scale is 1/N in the forward transform (--flag forward or 1), 1/N in the inverse (backward or 2), 1/sqrt(N)\n" \
    "in both (ortho or 4), or 1 (none or 8). Of hartley and wht, which are their own inverses, the forward\n"          \
    "transform has 1/N both with forward and with backward. dct4 has no scale and takes no --flag; its inverse is\n"   \
    "2/N times itself.\n"

#define WINDOW_TEXT \
    "Windows have the names and values of SciPy's get_window; one with a parameter is written as kaiser:8.6.\n"

#define INPUT_TEXT                                                                                                     \
    "INPUT is a sound file (WAV, FLAC, Ogg, AIFF and what else libsndfile reads), a text file of real numbers in\n"    \
    "ASCII, UTF-8, or UTF-16 with a byte-order mark, or - for either on standard input. Numbers are separated by\n"    \
    "white space, commas or semicolons; # starts a comment. With --decimal comma a comma is the decimal mark.\n"       \
    "Frames start every --hop samples. When samples remain after the last full frame, one more frame is\n"             \
    "filled up with zeros; an input shorter than one frame is refused. A sound file that is damaged or shorter than\n" \
    "it says is refused too, with exit status 3, unless --allow-damaged is given.\n"                                   \
    "With --channel each, every channel of a sound file has an output of its own: voice.png becomes voice.1.png,\n"    \
    "voice.2.png and so on.\n"                                                                                         \
    "\n"                                                                                                               \
    "Frequencies are in Hz and times in seconds for sound, in cycles per sample and in samples for numbers.\n"

#define CHECK_TEXT                                                                                              \
    "--check transforms each frame, unwindowed, there and back, and reports the root of the summed squared\n"   \
    "error over the root of the summed squares. The spectrum is then written only if --output or --format is\n" \
    "given too.\n"

#define EXIT_TEXT \
    "Exit status: 0 done; 1 an input, an output or a transform failed; 2 wrong words; 3 a damaged input.\n"

namespace spectrum {

const char* const plainFooter =
    "Without a command, INPUT is transformed, and the format tells whether a table or a picture is made.\n"
    "\n" FAMILIES_TEXT "\n" WINDOW_TEXT "\n" INPUT_TEXT
    "A picture shows time to the right and frequency or sequency upward.\n\n" CHECK_TEXT "\n" EXIT_TEXT
    "\n"
    "  zulspectrum voice.wav --length 60 --hop 30 --window hann --output voice.png\n"
    "  seq 100 | zulspectrum - --length 25 --format csv\n"
    "  zulspectrum voice.wav --length 48 --check\n"
    "  zulspectrum voice.wav --family dct4 --length 1024 --output voice.png\n"
    "  zulspectrum numbers.txt --family wht --order 10 --format csv\n"
    "\n"
    "A file that has the name of a command is given as ./layout.";

const char* const transformFooter =
    "The columns of csv are frame, time, bin, frequency (or sequency), re, im, magnitude. json has one object to a\n"
    "line: what is common to all frames, then the frames. npy is an array of NumPy, of frames and bins, complex where\n"
    "bins are complex. All numbers read back as what was computed.\n\n" FAMILIES_TEXT "\n" WINDOW_TEXT "\n" INPUT_TEXT
    "\n" CHECK_TEXT "\n" EXIT_TEXT
    "\n"
    "  zulspectrum transform voice.wav --family real --length 60 --hop 30 --window hann --output voice.csv\n"
    "  zulspectrum transform numbers.txt --length 25 --output spectra.npy";

const char* const spectrogramFooter =
    "A picture shows time to the right, frequency or sequency upward, and --range decibels below the strongest bin. A\n"
    "column is the mean power of its frames. The colours dusk, sea and grey are for screens, paper and ink for\n"
    "print.\n\n" FAMILIES_TEXT "\n" WINDOW_TEXT "\n" INPUT_TEXT "\n" CHECK_TEXT "\n" EXIT_TEXT
    "\n"
    "  zulspectrum spectrogram voice.wav --family real --length 60 --hop 30 --window hann --output voice.png\n"
    "  zulspectrum spectrogram concert.flac --start 0:30 --end 1:05.5 --columns 4096 --output part.svg";

const char* const inverseFooter =
    "INPUT is a CSV or NPY file of transform, and the family, the length, the window, the scale and (for NPY, which\n"
    "does not hold them, and for wht) the hop and the rate are those that it was made with. Frames are transformed\n"
    "back, weighted with the window once more and added up where they overlap, and each sample is divided by the sum\n"
    "of its squared weights: this is the signal that is nearest to the spectra in the mean square, and the samples\n"
    "themselves when the spectra are unchanged. Samples that no frame holds with a weight become zero; their number\n"
    "is reported. Frames that were filled up with zeros give these zeros back; --samples cuts them off.\n"
    "\n"
    "The output is a WAV or FLAC file, or text with a number to a line. --encoding pcm16 and pcm24 round the samples\n"
    "and cut off what is beyond full scale, which is reported; float and double keep them.\n"
    "\n" FAMILIES_TEXT "\n" WINDOW_TEXT "\n" EXIT_TEXT
    "\n"
    "  zulspectrum inverse voice.csv --family real --length 60 --window hann --output back.wav\n"
    "  zulspectrum inverse spectra.npy --length 25 --output numbers.txt";

const char* const batchFooter =
    "Each file gets an output in the folder --into, under its own path and name with the suffix of the format added;\n"
    "folders are searched through, but for hidden files. The outputs are the same bytes as those of single runs. A\n"
    "file that fails does not stop the rest and is named at the end. A run that was stopped, by whatever, goes on\n"
    "where it was when it is started again: a file is done again only when its size or date has changed or its\n"
    "output is missing. The folder keeps what was done in the file .zulspectrum-batch.jsonl.\n"
    "With --channel each, every channel of a sound file has an output of its own and counts as a file: voice.wav\n"
    "gives voice.wav.1.png, voice.wav.2.png and so on.\n"
    "\n"
    "Exit status: 0 all files are done; 1 some failed, or 3 where all of these are damaged; 2 wrong words.\n"
    "\n"
    "  zulspectrum batch recordings --into pictures --family real --length 60 --window hann\n"
    "  zulspectrum batch recordings --match '*.wav' --match '*.flac' --into tables --format npy --jobs 4";

const char* const clusterSummary = "Spectra of many files, by many processes on one machine or on many";

const char* const mpiFooter =
    "Each rank makes the outputs of files as zulspectrum batch does, and asks for the next when it is done. A\n"
    "recording of more than --split samples is split by time, and its pieces are gathered by rank 0. Inputs and the\n"
    "folder --into have to be the same on all machines, as in a shared file system. The outputs are the same bytes,\n"
    "whatever the number of ranks is. When a rank is lost the launcher ends the run; started again, it goes on where\n"
    "it was.\n"
    "\n"
    "Exit status: 0 all files are done; 1 some failed, or 3 where all of these are damaged; 2 wrong words.\n"
    "\n"
    "  mpirun -n 4 zulspectrum-mpi recordings --into pictures --family real --length 60 --window hann";

const char* const layoutFooter =
    "R3 is the real part of bin 3, I3 its imaginary part, and 0 a slot that holds zero. The numbers of the slots are\n"
    "in the line above.";

const char* const infoFooter =
    "It tells what the routine computes as a formula, how it is called, the length of each array, how it is built,\n"
    "what it counts, the proved bound of its error beside the worst of many trials, and how long it takes on this\n"
    "machine. Without a routine it tells about the library, and --list prints the names of all routines.\n"
    "\n"
    "  zulspectrum info zulgDFTFwd_RToCCS_25_64f";

const char* const benchFooter =
    "Each figure is the median of several rounds in which the transform repeats for --time seconds, one call after\n"
    "the other in a cache, and many transforms in one call of the batch library. Other programs on the machine make\n"
    "the figures larger.\n"
    "\n"
    "  zulspectrum bench --family real --lengths 15,16,60";

const char* const completionFooter =
    "  zulspectrum completion bash > /etc/bash_completion.d/zulspectrum\n"
    "  zulspectrum completion zsh > ~/.zfunc/_zulspectrum\n"
    "  zulspectrum completion fish > ~/.config/fish/completions/zulspectrum.fish";

}  // namespace spectrum
