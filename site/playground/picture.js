// A picture in blocks: rows and columns of each block are transformed, weak coefficients are dropped, and back.
"use strict";
zulg.picture = function (routines) {
    const one = function (name) {
        return document.getElementById("picture-" + name);
    };
    const size = 256;
    let source = null;
    const sizes = {
        dct4: [4, 8, 16, 32, 64],
        wht: [4, 8, 16, 32, 64],
        hartley: [4, 5, 8, 12, 15, 16, 20, 30, 32, 60, 64],
    };

    // A picture without a file: a disc, stripes and a slope.
    function made() {
        const grey = new Float64Array(size * size);
        for (let y = 0; y < size; ++y)
            for (let x = 0; x < size; ++x) {
                const disc = Math.hypot(x - 90, y - 110) < 60 ? 90 : 0,
                    stripes = x > 150 && y > 60 ? 45 * Math.sign(Math.sin((x + y) / 5)) : 0;
                grey[y * size + x] = 60 + x / 3 + disc + stripes + (y > 200 ? 30 * Math.cos((x * x) / 900) : 0);
            }
        return grey;
    }
    function show(canvas, grey, width) {
        canvas.width = canvas.height = width;
        const context = canvas.getContext("2d"),
            data = context.createImageData(width, width);
        for (let at = 0; at < width * width; ++at) {
            const value = grey[Math.floor(at / width) * size + (at % width)];
            data.data[4 * at] = data.data[4 * at + 1] = data.data[4 * at + 2] = value;
            data.data[4 * at + 3] = 255;
        }
        context.putImageData(data, 0, 0);
    }
    function line(family, n, values) {
        return routines.transform(family, n, "64f", 8, false, values);
    }
    // Both axes of a block, in place.
    function block(family, n, grey, x0, y0) {
        const row = new Float64Array(n);
        for (let y = 0; y < n; ++y) {
            for (let x = 0; x < n; ++x) row[x] = grey[(y0 + y) * size + x0 + x];
            line(family, n, row).forEach(function (value, x) {
                grey[(y0 + y) * size + x0 + x] = value;
            });
        }
        for (let x = 0; x < n; ++x) {
            for (let y = 0; y < n; ++y) row[y] = grey[(y0 + y) * size + x0 + x];
            line(family, n, row).forEach(function (value, y) {
                grey[(y0 + y) * size + x0 + x] = value;
            });
        }
    }
    function run() {
        const family = one("family").value,
            n = Number(one("size").value),
            share = Number(one("keep").value) / 100;
        const width = Math.floor(size / n) * n,
            work = source.slice(),
            shown = new Float64Array(size * size);
        const factor = family === "dct4" ? (n * n) / 4 : n * n; // of both axes, forward and back
        let total = 0,
            keptCount = 0,
            errors = 0;
        for (let y = 0; y < width; y += n)
            for (let x = 0; x < width; x += n) {
                block(family, n, work, x, y);
                const found = [];
                for (let v = 0; v < n; ++v)
                    for (let u = 0; u < n; ++u) found.push(Math.abs(work[(y + v) * size + x + u]));
                const least = found.slice().sort(function (a, b) {
                    return b - a;
                })[Math.max(0, Math.ceil(share * n * n) - 1)];
                for (let v = 0; v < n; ++v)
                    for (let u = 0; u < n; ++u) {
                        const at = (y + v) * size + x + u;
                        shown[at] = 40 * Math.log2(1 + Math.abs(work[at]) / n);
                        if (Math.abs(work[at]) < least) work[at] = 0;
                        else ++keptCount;
                        ++total;
                    }
                block(family, n, work, x, y);
                for (let v = 0; v < n; ++v)
                    for (let u = 0; u < n; ++u) {
                        const at = (y + v) * size + x + u;
                        work[at] /= factor;
                        errors += (work[at] - source[at]) ** 2;
                    }
            }
        show(one("source"), source, width);
        show(one("coefficients"), shown, width);
        show(one("result"), work, width);
        const mean = errors / (width * width);
        one("said").textContent =
            keptCount +
            " of " +
            total +
            " coefficients are kept (" +
            ((100 * keptCount) / total).toFixed(1) +
            " %). " +
            (mean < 1e-18
                ? "The picture is the same, but for rounding."
                : "Peak signal to noise: " + (10 * Math.log10((255 * 255) / mean)).toFixed(1) + " dB.");
        one("said").classList.remove("wrong");
    }
    function fillSizes() {
        const kept = Number(one("size").value) || 8,
            found = sizes[one("family").value];
        one("size").replaceChildren.apply(
            one("size"),
            found.map(function (n) {
                return new Option(n + " × " + n, n);
            }),
        );
        one("size").value = found.includes(kept) ? kept : 8;
    }
    one("family").addEventListener("change", function () {
        fillSizes();
        run();
    });
    one("size").addEventListener("change", run);
    one("keep").addEventListener("input", run);
    one("file").addEventListener("change", function () {
        const file = one("file").files[0];
        if (!file) return;
        createImageBitmap(file).then(
            function (bitmap) {
                const canvas = document.createElement("canvas"),
                    part = Math.min(bitmap.width, bitmap.height);
                canvas.width = canvas.height = size;
                const context = canvas.getContext("2d");
                context.drawImage(
                    bitmap,
                    (bitmap.width - part) / 2,
                    (bitmap.height - part) / 2,
                    part,
                    part,
                    0,
                    0,
                    size,
                    size,
                );
                const data = context.getImageData(0, 0, size, size).data;
                source = Float64Array.from({ length: size * size }, function (_, at) {
                    return 0.299 * data[4 * at] + 0.587 * data[4 * at + 1] + 0.114 * data[4 * at + 2];
                });
                run();
            },
            function () {
                one("said").textContent = "“" + file.name + "” holds no picture that this browser can read.";
                one("said").classList.add("wrong");
            },
        );
    });
    source = made();
    fillSizes();
    run();
};
