// The library in the page: the WebAssembly module, and its transforms on arrays of JavaScript.
//
// zulgModule is the module, packed by gzip and written in base64. ready(routines) is called once it runs.
"use strict";
const zulg = {};

zulg.families = {
    complex: { title: "Complex DFT", names: ["DFTFwd_CToC", "DFTInv_CToC"], complex: true },
    ccs: { title: "Real DFT, CCS", names: ["DFTFwd_RToCCS", "DFTInv_CCSToR"], layout: "ccs" },
    pack: { title: "Real DFT, Pack", names: ["DFTFwd_RToPack", "DFTInv_PackToR"], layout: "pack" },
    perm: { title: "Real DFT, Perm", names: ["DFTFwd_RToPerm", "DFTInv_PermToR"], layout: "perm" },
    hartley: { title: "Hartley transform", names: ["Hartley", "Hartley"] },
    wht: { title: "Walsh-Hadamard transform", names: ["WHT", "WHT"] },
    dct4: { title: "DCT-IV", names: [null, null] },
};

// The lengths of a family.
zulg.lengths = function (family) {
    const powers = function (last) {
        return Array.from({ length: last }, function (_, k) {
            return 2 ** (k + 1);
        });
    };
    if (family === "wht") return powers(13);
    if (family === "dct4") return powers(13);
    return Array.from({ length: 63 }, function (_, k) {
        return k + 2;
    });
};

// How many numbers the input and the output of a transform have.
zulg.sizes = function (family, length) {
    const spectrum = family === "complex" ? 2 * length : family === "ccs" ? 2 * Math.floor(length / 2) + 2 : length;
    return { input: family === "complex" ? 2 * length : length, output: spectrum };
};

// What each slot of the output holds: {text, bin, part}; part is "re", "im", "zero" or "".
zulg.slots = function (family, length) {
    const found = [],
        half = Math.floor(length / 2),
        isEven = length % 2 === 0;
    function add(part, bin) {
        found.push({ text: (part === "re" ? "Re X" : "Im X") + bin, bin: bin, part: part });
    }
    if (family === "complex") {
        for (let k = 0; k < length; ++k) {
            add("re", k);
            add("im", k);
        }
    } else if (family === "ccs" || family === "pack" || family === "perm") {
        const zero = { text: "+0.0", bin: -1, part: "zero" };
        add("re", 0);
        if (family === "ccs") found.push(zero);
        if (family === "perm" && isEven) add("re", half);
        for (let k = 1; 2 * k < length; ++k) {
            add("re", k);
            add("im", k);
        }
        if (isEven && family !== "perm") add("re", half);
        if (isEven && family === "ccs") found.push(zero);
    } else {
        for (let k = 0; k < length; ++k) found.push({ text: "X" + k, bin: k, part: "" });
    }
    return found;
};

zulg.Routines = class {
    constructor(exports) {
        this.exports = exports;
        this.room = {};
        this.plans = {};
        const Version = new DataView(exports.memory.buffer),
            at = exports.zulgenGetLibVersion();
        this.version = Version.getInt32(at, true) + "." + Version.getInt32(at + 4, true);
    }

    // Memory of the module that is kept under a name, as the number of its first byte.
    place(name, bytes) {
        const kept = this.room[name];
        if (kept && kept.bytes >= bytes) return kept.at;
        if (kept) this.exports.free(kept.at);
        this.room[name] = { bytes: bytes, at: this.exports.malloc(bytes) };
        return this.room[name].at;
    }
    array(at, count, element) {
        return new (element === "32f" ? Float32Array : Float64Array)(this.exports.memory.buffer, at, count);
    }
    plan(length, element) {
        const key = length + element;
        if (!this.plans[key]) {
            const place = this.exports.malloc(8);
            const status = this.exports["zulgDCT4InitAlloc_" + element](place, length);
            if (status !== 0)
                throw new Error("zulgDCT4InitAlloc_" + element + " refuses " + length + ": status " + status);
            this.plans[key] = new DataView(this.exports.memory.buffer).getUint32(place, true);
            this.exports.free(place);
        }
        return this.plans[key];
    }
    // The exported name of a transform.
    name(family, length, element, isInverse) {
        if (family === "dct4") return "zulgDCT4_" + element;
        const size = family === "wht" ? Math.log2(length) : length;
        return (
            "zulg" +
            zulg.families[family].names[isInverse ? 1 : 0] +
            "_" +
            size +
            "_" +
            element +
            (zulg.families[family].complex ? "c" : "")
        );
    }
    // The transform of `input`. Throws where the routine refuses.
    transform(family, length, element, flag, isInverse, input) {
        const sizes = zulg.sizes(family, length),
            width = element === "32f" ? 4 : 8;
        const read = isInverse ? sizes.output : sizes.input,
            written = isInverse ? sizes.input : sizes.output;
        if (input.length !== read) throw new Error(input.length + " numbers are given, " + read + " are due");
        const from = this.place("source", read * width),
            to = this.place("destination", written * width);
        const name = this.name(family, length, element, isInverse),
            routine = this.exports[name];
        if (!routine) throw new Error("there is no " + name);
        let last;
        if (family === "dct4") last = [this.plan(length, element)];
        else if (family === "wht") last = [flag, length > 128 ? this.place("buffer", 80000) : 0];
        else last = [flag];
        this.array(from, read, element).set(input);
        const status = routine(from, to, ...last);
        if (status !== 0) throw new Error(name + " ends with status " + status);
        return Float64Array.from(this.array(to, written, element));
    }
    // What the forward and the inverse together multiply by.
    roundTrip(family, length, flag) {
        if (family === "dct4") return length / 2;
        if (flag === 4) return 1;
        if (flag === 8) return length;
        return family === "hartley" || family === "wht" ? 1 / length : 1;
    }
};

// Decoded, unpacked and compiled at the same time.
zulg.load = async function () {
    const letters = atob(zulgModule),
        packed = new Uint8Array(letters.length);
    for (let at = 0; at < letters.length; ++at) packed[at] = letters.charCodeAt(at);
    const unpacked = new Blob([packed]).stream().pipeThrough(new DecompressionStream("gzip"));
    const made = await WebAssembly.instantiateStreaming(
        new Response(unpacked, { headers: { "Content-Type": "application/wasm" } }),
        {},
    );
    return new zulg.Routines(made.instance.exports);
};
