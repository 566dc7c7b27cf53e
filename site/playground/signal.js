// One transform: input, slots, spectrum, inverse and error, all at once.
"use strict";
zulg.signal = function (routines) {
    const one = function (name) {
        return document.getElementById("signal-" + name);
    };
    const state = { input: [], output: [], sound: null, before: null };
    const shapes = {
        impulse: function (n) {
            return n === 1 ? 1 : 0;
        },
        constant: function () {
            return 1;
        },
        cosine: function (n, N) {
            return Math.cos((2 * Math.PI * 3 * n) / N);
        },
        "two tones": function (n, N) {
            return 0.6 * Math.sin((2 * Math.PI * 2 * n) / N) + 0.4 * Math.cos((2 * Math.PI * 5.5 * n) / N);
        },
        square: function (n, N) {
            return n < N / 2 ? 1 : -1;
        },
        ramp: function (n, N) {
            return n / N;
        },
        random: null,
    };
    Object.keys(zulg.families).forEach(function (family) {
        one("family").add(new Option(zulg.families[family].title, family));
    });
    Object.keys(shapes).forEach(function (shape) {
        one("shape").add(new Option(shape, shape));
    });
    one("shape").value = "two tones";

    function chosen() {
        return {
            family: one("family").value,
            length: Number(one("length").value),
            element: one("element").value,
            flag: Number(one("flag").value),
        };
    }
    function fillLengths() {
        const kept = Number(one("length").value) || 16,
            lengths = zulg.lengths(one("family").value);
        one("length").replaceChildren.apply(
            one("length"),
            lengths.map(function (length) {
                return new Option(length, length);
            }),
        );
        one("length").value = lengths.includes(kept) ? kept : lengths.includes(16) ? 16 : lengths[0];
        one("flag").disabled = one("family").value === "dct4";
    }
    function fillShape() {
        const now = chosen(),
            sizes = zulg.sizes(now.family, now.length),
            width = sizes.input / now.length;
        const random = zulg.random(7),
            shape = shapes[one("shape").value];
        state.sound = null;
        setInput(
            Array.from({ length: sizes.input }, function (_, at) {
                return shape === null ? random() : at % width ? 0 : shape(at / width, now.length);
            }),
        );
    }
    function setInput(values) {
        state.before = null;
        state.input = values;
        one("input").value = values.map(String).join(", ");
        run();
    }
    function say(text, isWrong) {
        one("said").textContent = text;
        one("said").classList.toggle("wrong", Boolean(isWrong));
    }

    // Bins as magnitudes where they are complex, otherwise as they are.
    function bins(now, output) {
        if (now.family === "hartley" || now.family === "wht" || now.family === "dct4")
            return { values: Array.from(output), isPositive: false };
        const slots = zulg.slots(now.family, now.length),
            found = [];
        slots.forEach(function (slot, at) {
            if (slot.part === "zero") return;
            found[slot.bin] = found[slot.bin] || [0, 0];
            found[slot.bin][slot.part === "im" ? 1 : 0] = output[at];
        });
        return {
            values: found.map(function (bin) {
                return Math.hypot(bin[0], bin[1]);
            }),
            isPositive: true,
        };
    }
    // The output with the weakest bins set to zero.
    function kept(now, output) {
        const all = bins(now, output).values,
            share = Number(one("keep").value) / 100;
        const order = all
            .map(function (_, k) {
                return k;
            })
            .sort(function (a, b) {
                return Math.abs(all[b]) - Math.abs(all[a]);
            });
        const isKept = new Array(all.length).fill(false);
        order.slice(0, Math.max(1, Math.round(share * all.length))).forEach(function (k) {
            isKept[k] = true;
        });
        const slots = zulg.slots(now.family, now.length);
        return {
            output: output.map(function (value, at) {
                return slots[at].part === "zero" || isKept[slots[at].bin] ? value : 0;
            }),
            isKept: isKept,
            all: all.length,
        };
    }

    let inputPlot;
    function run() {
        const now = chosen();
        let output, again;
        try {
            output = routines.transform(now.family, now.length, now.element, now.flag, false, state.input);
        } catch (error) {
            return say(error.message + ".", true);
        }
        const left = kept(now, output);
        again = routines.transform(now.family, now.length, now.element, now.flag, true, left.output);
        const factor = routines.roundTrip(now.family, now.length, now.flag);
        const restored = again.map(function (value) {
            return value / factor;
        });
        let errors = 0,
            squares = 0;
        restored.forEach(function (value, at) {
            errors += (value - state.input[at]) ** 2;
            squares += state.input[at] ** 2;
        });
        const relative = squares === 0 ? 0 : Math.sqrt(errors / squares);
        state.output = Array.from(output);

        const slots = zulg.slots(now.family, now.length),
            shown = slots.slice(0, 256);
        const moved =
            state.before && state.before.length === output.length
                ? output.map(function (value, at) {
                      return value !== state.before[at];
                  })
                : null;
        one("slots").replaceChildren.apply(
            one("slots"),
            shown.map(function (slot, at) {
                const item = document.createElement("li");
                item.className = { re: "real", im: "imaginary", zero: "zero" }[slot.part] || "";
                if (moved && moved[at]) item.classList.add("moved");
                item.innerHTML =
                    "<span class=slot>" +
                    at +
                    "</span><span class=held>" +
                    slot.text +
                    "</span><span class=value>" +
                    Number(output[at].toPrecision(6)) +
                    "</span>";
                return item;
            }),
        );
        one("output").value = state.output.map(String).join(", ");
        const spectrum = bins(now, output),
            spread = now.family === "complex" ? 2 : 1;
        inputPlot = zulg.plot(
            one("input-plot"),
            state.input.filter(function (_, at) {
                return at % spread === 0;
            }),
            { most: Math.max(1, ...state.input.map(Math.abs)) },
        );
        zulg.plot(one("spectrum-plot"), spectrum.values, {
            isPositive: spectrum.isPositive,
            colour: "second",
            faded: left.isKept.map(function (is) {
                return !is;
            }),
        });
        zulg.plot(
            one("inverse-plot"),
            restored.filter(function (_, at) {
                return at % spread === 0;
            }),
            { colour: "fourth", most: Math.max(1, ...state.input.map(Math.abs)) },
        );
        one("kept").textContent = left.isKept.filter(Boolean).length + " of " + left.all;
        const routine = routines.name(now.family, now.length, now.element, false),
            link = one("routine");
        link.textContent = routine;
        link.href = "../reference/" + routine + ".html";
        say(
            "Forward and back: relative error " +
                relative.toExponential(2) +
                (moved ? "; " + moved.filter(Boolean).length + " of " + moved.length + " slots moved." : "."),
        );
        one("error").value = relative;
    }
    zulg.runSignal = run;

    ["family", "length", "element"].forEach(function (name) {
        one(name).addEventListener("change", function () {
            if (name === "family") fillLengths();
            if (state.sound) takeFrame();
            else fillShape();
        });
    });
    one("flag").addEventListener("change", function () {
        state.before = null;
        run();
    });
    one("shape").addEventListener("change", fillShape);
    one("keep").addEventListener("input", run);
    one("input").addEventListener("change", function () {
        const now = chosen(),
            due = zulg.sizes(now.family, now.length).input;
        let values;
        try {
            values = zulg.numbers(one("input").value);
        } catch (error) {
            return say(error.message + ".", true);
        }
        if (values.length !== due)
            return say(
                values.length +
                    " numbers are given; " +
                    now.length +
                    " points take " +
                    due +
                    (due === 2 * now.length ? ", real and imaginary parts in turn." : "."),
                true,
            );
        state.before = state.output.slice();
        state.input = values;
        run();
    });
    function change(at, value) {
        if (!(at >= 0 && at < state.input.length) || Number.isNaN(value)) return say("There is no such sample.", true);
        state.before = state.output.slice();
        state.input[at] = value;
        one("input").value = state.input.map(String).join(", ");
        run();
    }
    one("change").addEventListener("click", function () {
        change(Number(one("at").value), Number(one("value").value));
    });
    let isDrawing = false;
    function draw(event) {
        const place = inputPlot.at(event),
            spread = one("family").value === "complex" ? 2 : 1;
        change(place.k * spread, Number(place.value.toPrecision(4)));
    }
    one("input-plot").addEventListener("pointerdown", function (event) {
        isDrawing = true;
        one("input-plot").setPointerCapture(event.pointerId);
        draw(event);
    });
    one("input-plot").addEventListener("pointermove", function (event) {
        if (isDrawing) draw(event);
    });
    one("input-plot").addEventListener("pointerup", function () {
        isDrawing = false;
    });

    // A sound: the frame that is shown begins at a place of it, and all frames can be heard.
    function takeFrame() {
        const now = chosen(),
            width = zulg.sizes(now.family, now.length).input / now.length;
        const from = Math.floor(
            (Number(one("place").value) / 100) * Math.max(0, state.sound.samples.length - now.length),
        );
        setInput(
            Array.from({ length: now.length * width }, function (_, at) {
                return at % width ? 0 : state.sound.samples[from + at / width] || 0;
            }),
        );
    }
    function useSound(sound, words) {
        state.sound = sound;
        one("listen").disabled = one("listen-kept").disabled = false;
        takeFrame();
        say(
            words +
                ": " +
                (sound.samples.length / sound.rate).toFixed(2) +
                " s at " +
                sound.rate +
                " Hz. " +
                one("said").textContent,
        );
    }
    one("file").addEventListener("change", function () {
        const file = one("file").files[0];
        if (file)
            zulg.readSound(file).then(
                function (sound) {
                    useSound(sound, file.name);
                },
                function (error) {
                    say(error.message, true);
                },
            );
    });
    one("microphone").addEventListener("click", function () {
        say("Recording for two seconds …");
        zulg.record(2).then(
            function (sound) {
                useSound(sound, "Recording");
            },
            function (error) {
                say(error.message, true);
            },
        );
    });
    one("place").addEventListener("input", function () {
        if (state.sound) takeFrame();
    });
    one("listen").addEventListener("click", function () {
        const sound = state.sound || zulg.tones();
        zulg.play(sound.samples, sound.rate);
    });
    one("listen-kept").addEventListener("click", function () {
        const now = chosen(),
            sound = state.sound || zulg.tones(),
            heard = new Float64Array(sound.samples.length);
        const width = zulg.sizes(now.family, now.length).input / now.length,
            factor = routines.roundTrip(now.family, now.length, now.flag);
        for (let from = 0; from + now.length <= heard.length; from += now.length) {
            const frame = new Float64Array(now.length * width);
            for (let n = 0; n < now.length; ++n) frame[n * width] = sound.samples[from + n];
            const output = routines.transform(now.family, now.length, now.element, now.flag, false, frame);
            const again = routines.transform(
                now.family,
                now.length,
                now.element,
                now.flag,
                true,
                kept(now, Array.from(output)).output,
            );
            for (let n = 0; n < now.length; ++n) heard[from + n] = again[n * width] / factor;
        }
        zulg.heard = heard;
        zulg.play(heard, sound.rate);
    });
    one("listen").disabled = one("listen-kept").disabled = false;

    fillLengths();
    fillShape();
    document.addEventListener("theme", run);
    window.addEventListener("resize", run);
    // For scripts: what the page shows for these choices.
    zulg.show = function (family, length, element, flag, input) {
        one("family").value = family;
        fillLengths();
        one("length").value = length;
        one("element").value = element;
        one("flag").value = flag;
        setInput(Array.from(input));
        return state.output;
    };
};
