// What the parts of the playground share: plots on a canvas, sounds, numbers as text.
"use strict";
zulg.colour = function (name) {
    return getComputedStyle(document.documentElement)
        .getPropertyValue("--" + name)
        .trim();
};

// Draws values as bars or as a line; `bars` false where there are many. Returns how a place on the canvas maps to
// values.
zulg.plot = function (canvas, values, options) {
    const ratio = window.devicePixelRatio || 1,
        width = canvas.clientWidth,
        height = canvas.clientHeight;
    canvas.width = width * ratio;
    canvas.height = height * ratio;
    const context = canvas.getContext("2d");
    context.scale(ratio, ratio);
    context.clearRect(0, 0, width, height);
    const left = 46,
        right = 8,
        top = 8,
        bottom = 20,
        count = Math.max(values.length, 1);
    let most = options.most || 0;
    if (!most) for (const value of values) most = Math.max(most, Math.abs(value));
    most = most || 1;
    const low = options.isPositive ? 0 : -most,
        high = most;
    const x = function (k) {
        return left + ((k + 0.5) * (width - left - right)) / count;
    };
    const y = function (value) {
        return top + ((high - value) / (high - low)) * (height - top - bottom);
    };
    context.strokeStyle = zulg.colour("line");
    context.fillStyle = zulg.colour("text");
    context.font = "11px system-ui, sans-serif";
    context.textAlign = "right";
    for (const value of options.isPositive ? [0, most / 2, most] : [-most, 0, most]) {
        context.beginPath();
        context.moveTo(left, y(value));
        context.lineTo(width - right, y(value));
        context.stroke();
        context.fillText(Math.abs(value) < 1e-12 ? "0" : value.toPrecision(3), left - 4, y(value) + 4);
    }
    context.textAlign = "center";
    const step = Math.max(1, Math.ceil(count / 12));
    for (let k = 0; k < count; k += step) context.fillText(options.names ? options.names[k] : k, x(k), height - 5);
    const thick = Math.max(1, Math.min(18, ((width - left - right) / count) * 0.6));
    if (count <= 400) {
        values.forEach(function (value, k) {
            context.fillStyle = zulg.colour(
                options.lit && options.lit[k]
                    ? "second"
                    : options.faded && options.faded[k]
                      ? "line"
                      : options.colour || "first",
            );
            context.fillRect(x(k) - thick / 2, Math.min(y(0), y(value)), thick, Math.max(1, Math.abs(y(value) - y(0))));
        });
    } else {
        context.strokeStyle = zulg.colour(options.colour || "first");
        context.beginPath();
        for (let at = 0; at < width - left - right; ++at) {
            let least = Infinity,
                greatest = -Infinity;
            const first = Math.floor((at * count) / (width - left - right)),
                last = Math.max(first + 1, Math.floor(((at + 1) * count) / (width - left - right)));
            for (let k = first; k < last && k < count; ++k) {
                least = Math.min(least, values[k]);
                greatest = Math.max(greatest, values[k]);
            }
            context.moveTo(left + at + 0.5, y(least));
            context.lineTo(left + at + 0.5, y(greatest) - 0.5);
        }
        context.stroke();
    }
    return {
        at: function (event) {
            const box = canvas.getBoundingClientRect();
            const k = Math.floor(((event.clientX - box.left - left) / (width - left - right)) * count);
            const value = high - ((event.clientY - box.top - top) / (height - top - bottom)) * (high - low);
            return { k: Math.min(Math.max(k, 0), count - 1), value: Math.min(Math.max(value, low), high) };
        },
    };
};

// Numbers of a text: separated by blanks, commas, semicolons or lines. Throws on what is no number.
zulg.numbers = function (text) {
    return text
        .split(/[\s,;]+/)
        .filter(Boolean)
        .map(function (word) {
            const value = Number(word);
            if (Number.isNaN(value)) throw new Error("“" + word.slice(0, 20) + "” is no number");
            return value;
        });
};

// Repeatable random numbers between -1 and 1.
zulg.random = function (seed) {
    let state = seed >>> 0;
    return function () {
        state = (state + 0x6d2b79f5) | 0;
        let t = Math.imul(state ^ (state >>> 15), 1 | state);
        t = (t + Math.imul(t ^ (t >>> 7), 61 | t)) ^ t;
        return ((t ^ (t >>> 14)) >>> 0) / 2147483648 - 1;
    };
};

// Sounds. Nothing of them leaves the page.
zulg.audio = function () {
    return (zulg.context = zulg.context || new AudioContext());
};
zulg.readSound = async function (file) {
    let sound;
    try {
        sound = await zulg.audio().decodeAudioData(await file.arrayBuffer());
    } catch (error) {
        throw new Error(
            "“" + file.name + "” holds no sound that this browser can read. WAV, FLAC, MP3 and Ogg usually work.",
        );
    }
    const samples = new Float64Array(sound.length);
    for (let channel = 0; channel < sound.numberOfChannels; ++channel) {
        const data = sound.getChannelData(channel);
        for (let n = 0; n < data.length; ++n) samples[n] += data[n] / sound.numberOfChannels;
    }
    return { samples: samples, rate: sound.sampleRate };
};
zulg.record = async function (seconds) {
    let stream;
    try {
        stream = await navigator.mediaDevices.getUserMedia({ audio: true });
    } catch (error) {
        throw new Error("The microphone cannot be used: " + (error.message || error.name) + ".");
    }
    const context = zulg.audio(),
        source = context.createMediaStreamSource(stream),
        parts = [];
    await context.resume();
    const tap = context.createScriptProcessor(4096, 1, 1);
    tap.onaudioprocess = function (event) {
        parts.push(Float64Array.from(event.inputBuffer.getChannelData(0)));
    };
    source.connect(tap);
    tap.connect(context.destination);
    await new Promise(function (done) {
        setTimeout(done, 1000 * seconds);
    });
    tap.disconnect();
    stream.getTracks().forEach(function (track) {
        track.stop();
    });
    const samples = new Float64Array(
        parts.reduce(function (sum, part) {
            return sum + part.length;
        }, 0),
    );
    parts.reduce(function (at, part) {
        samples.set(part, at);
        return at + part.length;
    }, 0);
    return { samples: samples, rate: context.sampleRate };
};
zulg.play = function (samples, rate) {
    const context = zulg.audio(),
        buffer = context.createBuffer(1, Math.max(samples.length, 1), rate);
    buffer.getChannelData(0).set(samples);
    if (zulg.playing) zulg.playing.stop();
    zulg.playing = context.createBufferSource();
    zulg.playing.buffer = buffer;
    zulg.playing.connect(context.destination);
    context.resume().then(function () {
        zulg.playing.start();
    });
};

// Two seconds of three tones that rise, for a page on which no sound has been loaded.
zulg.tones = function () {
    const rate = 22050,
        samples = new Float64Array(2 * rate);
    for (let n = 0; n < samples.length; ++n) {
        const t = n / rate;
        samples[n] =
            0.3 * Math.sin(2 * Math.PI * (220 * t + 180 * t * t)) +
            0.2 * Math.sin(2 * Math.PI * 1320 * t) * Math.exp(-2 * (t % 0.5)) +
            0.1 * Math.sin(2 * Math.PI * (3000 * t - 500 * t * t));
    }
    return { samples: samples, rate: rate };
};
