// An MDCT on the DCT-IV: frames of 2 N samples that overlap by half, N coefficients each, and back without an error.
"use strict";
zulg.mdct = function (routines) {
    const one = function (name) {
        return document.getElementById("mdct-" + name);
    };
    let sound = zulg.tones(),
        heard = null;

    function window_(n, length) {
        return Math.sin((Math.PI * (n + 0.5)) / length);
    }
    // The fold of a windowed frame of four quarters a, b, c, d to -c_r - d, a - b_r, where r is backwards.
    function fold(frame, n) {
        const half = n / 2,
            folded = new Float64Array(n);
        for (let k = 0; k < half; ++k) {
            folded[k] = -frame[3 * half - 1 - k] - frame[3 * half + k];
            folded[half + k] = frame[k] - frame[n - 1 - k];
        }
        return folded;
    }
    // The same backwards: the frame with its aliases, twice over.
    function unfold(folded, n) {
        const half = n / 2,
            frame = new Float64Array(2 * n);
        for (let k = 0; k < half; ++k) {
            frame[3 * half - 1 - k] = frame[3 * half + k] = -folded[k];
            frame[k] = folded[half + k];
            frame[n - 1 - k] = -folded[half + k];
        }
        return frame;
    }
    function run() {
        const n = Number(one("length").value),
            share = Number(one("keep").value) / 100,
            samples = sound.samples;
        const frames = Math.ceil(samples.length / n) + 1,
            magnitudes = [];
        heard = new Float64Array((frames + 1) * n);
        let keptCount = 0;
        for (let frame = 0; frame < frames; ++frame) {
            const start = (frame - 1) * n,
                part = new Float64Array(2 * n);
            for (let k = 0; k < 2 * n; ++k) part[k] = (samples[start + k] || 0) * window_(k, 2 * n);
            const bins = routines.transform("dct4", n, "64f", 8, false, fold(part, n));
            magnitudes.push(bins.map(Math.abs));
            const least = Float64Array.from(bins, Math.abs).sort()[Math.min(n - 1, Math.floor((1 - share) * n))];
            for (let k = 0; k < n; ++k)
                if (share < 1 && Math.abs(bins[k]) < least) bins[k] = 0;
                else ++keptCount;
            const back = unfold(routines.transform("dct4", n, "64f", 8, false, bins), n);
            for (let k = 0; k < 2 * n; ++k) heard[frame * n + k] += (back[k] * window_(k, 2 * n) * 2) / n;
        }
        heard = heard.slice(n, n + samples.length);
        let errors = 0,
            squares = 0;
        heard.forEach(function (value, at) {
            errors += (value - samples[at]) ** 2;
            squares += samples[at] ** 2;
        });
        const relative = Math.sqrt(errors / (squares || 1));
        one("error").value = relative;
        one("said").classList.remove("wrong");
        one("said").textContent =
            frames +
            " frames of " +
            n +
            " coefficients, " +
            ((100 * keptCount) / (frames * n)).toFixed(1) +
            " % kept; relative error " +
            relative.toExponential(2) +
            ".";
        zulg.plot(one("source"), Array.from(samples), {});
        zulg.plot(one("result"), Array.from(heard), { colour: "fourth" });
        const canvas = one("coefficients"),
            shownFrames = Math.min(frames, 600);
        canvas.width = shownFrames;
        canvas.height = n;
        const context = canvas.getContext("2d"),
            data = context.createImageData(shownFrames, n);
        for (let frame = 0; frame < shownFrames; ++frame)
            for (let k = 0; k < n; ++k) {
                const level = Math.max(0, Math.min(1, 1 + Math.log10(1e-6 + magnitudes[frame][k] / Math.sqrt(n)) / 4)),
                    at = 4 * ((n - 1 - k) * shownFrames + frame);
                data.data[at] = 255 * Math.min(1, 1.6 * level);
                data.data[at + 1] = 255 * level * level;
                data.data[at + 2] = 90 + 120 * (1 - level) * level;
                data.data[at + 3] = 255;
            }
        context.putImageData(data, 0, 0);
    }
    one("length").addEventListener("change", run);
    one("keep").addEventListener("input", run);
    one("file").addEventListener("change", function () {
        const file = one("file").files[0];
        if (!file) return;
        zulg.readSound(file).then(
            function (read) {
                sound = { samples: read.samples.slice(0, 20 * read.rate), rate: read.rate };
                run();
            },
            function (error) {
                one("said").textContent = error.message;
                one("said").classList.add("wrong");
            },
        );
    });
    one("listen").addEventListener("click", function () {
        zulg.play(sound.samples, sound.rate);
    });
    one("listen-kept").addEventListener("click", function () {
        zulg.play(heard, sound.rate);
    });
    zulg.runMdct = run;
    run();
};
