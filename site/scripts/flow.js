// Draws the data-flow graph of the page, zulgGraph. Steps are placed in columns by their depth, and in each column near
// what they are made of; blocks are highlighted by the buttons of the tree.
"use strict";
(function () {
    const holder = document.querySelector(".drawing"),
        reading = document.querySelector(".reading");
    const graph = zulgGraph,
        rowHeight = 24;
    let columnWidth = 92;
    const names = [],
        nodes = [];
    let operations = 0;

    // Nodes: steps, then outputs. `from` are the places of what a node is made of; the second one of a difference is
    // subtracted.
    graph.steps.forEach(function (step) {
        const kind = step[0];
        names.push(kind === 0 ? graph.inputs[step[1]] : "t" + operations++);
        const from = kind === 0 ? [] : kind === 3 ? [step[1]] : [step[1], step[2]];
        const label = [graph.inputs[step[1]], "+", "−", "×" + (kind === 3 ? constantName(step[2]) : ""), "×"][kind];
        nodes.push({
            kind: kind,
            from: from,
            label: label,
            block: step[3],
            constant: kind === 3 ? step[2] : -1,
            to: [],
        });
    });
    graph.outputs.forEach(function (output) {
        const port = { re: "Re ", im: "Im ", out: "", rising: "up ", falling: "down " }[output[0]];
        const name =
            port === undefined ? output[0] + " " + output[1] : port + (output[0].length === 2 ? "X" : "") + output[1];
        names.push(name);
        nodes.push({
            kind: 5,
            from: [output[2]],
            label: (output[3] ? "−" : "") + name,
            block: nodes[output[2]].block,
            constant: -1,
            to: [],
        });
    });
    nodes.forEach(function (node, at) {
        node.from.forEach(function (source) {
            nodes[source].to.push(at);
        });
    });
    function constantName(place) {
        return isTwo(place) ? "2" : "c" + place;
    }
    function isTwo(place) {
        return graph.constants[place][0] === 2 && place === graph.constants.length - 1;
    }

    function depths() {
        nodes.forEach(function (node) {
            node.depth = node.from.reduce(function (most, source) {
                return Math.max(most, nodes[source].depth + 1);
            }, 0);
        });
        const last = nodes.reduce(function (most, node) {
            return Math.max(most, node.depth);
        }, 0);
        nodes.forEach(function (node) {
            if (node.kind === 5) node.depth = last;
        });
        // A step moves right to where its first use is near, as far as it does not make others longer.
        for (let at = nodes.length - 1; at >= 0; --at) {
            const node = nodes[at];
            if (node.kind === 0 || node.kind === 5 || node.to.length === 0) continue;
            const nearest = node.to.reduce(function (least, use) {
                return Math.min(least, nodes[use].kind === 5 ? node.depth + 1 : nodes[use].depth);
            }, 1e9);
            node.depth = Math.max(node.depth, nearest - 1);
        }
        return last;
    }
    function place() {
        const last = depths(),
            columns = Array.from({ length: last + 1 }, function () {
                return [];
            });
        nodes.forEach(function (node, at) {
            columns[node.depth].push(at);
        });
        columns.forEach(function (column) {
            column.forEach(function (at, row) {
                nodes[at].y = row - column.length / 2;
            });
        });
        function sweep(column, neighbours) {
            column.forEach(function (at) {
                const near = neighbours(nodes[at]);
                nodes[at].wish = near.length
                    ? near.reduce(function (sum, other) {
                          return sum + nodes[other].y;
                      }, 0) / near.length
                    : nodes[at].y;
            });
            column.sort(function (a, b) {
                return nodes[a].wish - nodes[b].wish || a - b;
            });
            column.forEach(function (at, row) {
                nodes[at].y = row - column.length / 2;
            });
        }
        for (let round = 0; round < 8; ++round) {
            for (let depth = 1; depth <= last; ++depth)
                sweep(columns[depth], function (node) {
                    return node.from;
                });
            for (let depth = last - 1; depth >= 0; --depth)
                sweep(columns[depth], function (node) {
                    return node.to;
                });
        }
        // Columns that are not full spread out toward what they wish for.
        columns.forEach(function (column) {
            const tallest = columns.reduce(function (most, other) {
                return Math.max(most, other.length);
            }, 0);
            const stretch = Math.min(tallest / column.length, 3);
            column.forEach(function (at) {
                nodes[at].y *= stretch;
            });
        });
        const height =
            nodes.reduce(function (most, node) {
                return Math.max(most, Math.abs(node.y));
            }, 0) *
            2 *
            rowHeight;
        columnWidth = Math.max(92, (1.5 * height) / (last + 1)); // about as wide as the frame, whatever the length
        nodes.forEach(function (node) {
            node.px = 60 + node.depth * columnWidth;
            node.py = node.y * rowHeight;
        });
    }
    place();

    const edges = [];
    function draw() {
        const parts = [];
        nodes.forEach(function (node, at) {
            node.from.forEach(function (source, which) {
                const from = nodes[source],
                    x0 = from.px + 12,
                    x1 = node.px - 12,
                    middle = (x0 + x1) / 2;
                const isMinus = (node.kind === 2 && which === 1) || (node.kind === 5 && node.label[0] === "−");
                edges.push({ from: source, to: at });
                parts.push(
                    "<path class=edge d='M" +
                        x0 +
                        " " +
                        from.py +
                        "C" +
                        middle +
                        " " +
                        from.py +
                        " " +
                        middle +
                        " " +
                        node.py +
                        " " +
                        x1 +
                        " " +
                        node.py +
                        "'" +
                        (isMinus ? " stroke-dasharray='4 3'" : "") +
                        "/>",
                );
            });
        });
        nodes.forEach(function (node, at) {
            const wide = node.kind === 0 || node.kind === 5 || node.kind === 3;
            const half = wide ? Math.max(12, node.label.length * 3.6 + 3) : 9;
            const shape = wide
                ? "<rect class=node data-at=" +
                  at +
                  " x=" +
                  (node.px - half) +
                  " y=" +
                  (node.py - 9) +
                  " width=" +
                  2 * half +
                  " height=18 rx=" +
                  (node.kind === 3 ? 9 : 2) +
                  "></rect>"
                : "<circle class=node data-at=" + at + " cx=" + node.px + " cy=" + node.py + " r=9></circle>";
            parts.push(
                shape + "<text x=" + node.px + " y=" + (node.py + 4) + " text-anchor=middle>" + node.label + "</text>",
            );
        });
        holder.innerHTML = "<svg xmlns='http://www.w3.org/2000/svg' aria-hidden='true'>" + parts.join("") + "</svg>";
    }
    draw();
    const svg = holder.firstChild;
    const edgeShapes = Array.from(svg.querySelectorAll(".edge")),
        nodeShapes = Array.from(svg.querySelectorAll(".node"));
    nodeShapes.sort(function (a, b) {
        return a.dataset.at - b.dataset.at;
    });

    // The part of the drawing that is seen.
    const bounds = {};
    bounds.left =
        Math.min.apply(
            null,
            nodes.map(function (node) {
                return node.px;
            }),
        ) - 45;
    bounds.right =
        Math.max.apply(
            null,
            nodes.map(function (node) {
                return node.px;
            }),
        ) + 45;
    bounds.top =
        Math.min.apply(
            null,
            nodes.map(function (node) {
                return node.py;
            }),
        ) - 20;
    bounds.bottom =
        Math.max.apply(
            null,
            nodes.map(function (node) {
                return node.py;
            }),
        ) + 20;
    let view;
    function show() {
        svg.setAttribute("viewBox", [view.x, view.y, view.width, view.height].join(" "));
    }
    function fit() {
        view = { x: bounds.left, y: bounds.top, width: bounds.right - bounds.left, height: bounds.bottom - bounds.top };
        show();
    }
    function zoom(factor, x, y) {
        const ax = x === undefined ? view.x + view.width / 2 : x,
            ay = y === undefined ? view.y + view.height / 2 : y;
        view = {
            x: ax - (ax - view.x) * factor,
            y: ay - (ay - view.y) * factor,
            width: view.width * factor,
            height: view.height * factor,
        };
        show();
    }
    function move(dx, dy) {
        view.x += dx * view.width;
        view.y += dy * view.height;
        show();
    }
    function pointOf(event) {
        const at = new DOMPoint(event.clientX, event.clientY).matrixTransform(svg.getScreenCTM().inverse());
        return at;
    }
    fit();
    holder.addEventListener(
        "wheel",
        function (event) {
            event.preventDefault();
            const at = pointOf(event);
            zoom(event.deltaY > 0 ? 1.15 : 1 / 1.15, at.x, at.y);
        },
        { passive: false },
    );
    let grip = null;
    svg.addEventListener("pointerdown", function (event) {
        grip = { at: pointOf(event), moved: false };
    });
    svg.addEventListener("pointermove", function (event) {
        if (!grip || event.buttons === 0) return;
        const now = pointOf(event);
        view.x -= now.x - grip.at.x;
        view.y -= now.y - grip.at.y;
        grip.moved = grip.moved || Math.abs(event.movementX) + Math.abs(event.movementY) > 1;
        show();
    });
    svg.addEventListener("pointerup", function (event) {
        if (grip && !grip.moved && event.target.dataset.at !== undefined) select(Number(event.target.dataset.at));
        grip = null;
    });

    // What is said of a step, and the steps that it is made of.
    let selected = -1;
    const blockTitle = function (number) {
        return graph.blocks[number][0];
    };
    function sentence(at) {
        const node = nodes[at],
            parts = node.from.map(function (source) {
                return names[source];
            });
        const block = blockTitle(node.block) ? " Block: " + blockTitle(node.block) + "." : "";
        if (node.kind === 0) return names[at] + ": an input, used " + node.to.length + " times.";
        if (node.kind === 5)
            return "Output " + names[at] + " = " + (node.label[0] === "−" ? "−" : "") + parts[0] + "." + block;
        if (node.kind === 3) {
            const constant = graph.constants[node.constant];
            return (
                names[at] +
                " = " +
                constantName(node.constant) +
                " · " +
                parts[0] +
                ", " +
                constantName(node.constant) +
                " = " +
                constant[0] +
                " (" +
                constant[1] +
                ")." +
                block
            );
        }
        return names[at] + " = " + parts.join({ 1: " + ", 2: " − ", 4: " · " }[node.kind]) + "." + block;
    }
    function light(isLit) {
        const any = isLit !== null;
        nodeShapes.forEach(function (shape, at) {
            const lit = any && isLit(at);
            shape.classList.toggle("lit", lit);
            shape.classList.toggle("faded", any && !lit);
            shape.nextSibling.classList.toggle("faded", any && !lit);
        });
        edgeShapes.forEach(function (shape, at) {
            const lit = any && isLit(edges[at].from) && isLit(edges[at].to);
            shape.classList.toggle("lit", lit);
            shape.classList.toggle("faded", any && !lit);
        });
    }
    function select(at) {
        selected = at;
        const cone = new Set([at]),
            waiting = [at];
        while (waiting.length)
            nodes[waiting.pop()].from.forEach(function (source) {
                if (!cone.has(source)) {
                    cone.add(source);
                    waiting.push(source);
                }
            });
        light(function (each) {
            return cone.has(each);
        });
        let inputs = 0;
        cone.forEach(function (each) {
            inputs += nodes[each].kind === 0 ? 1 : 0;
        });
        reading.textContent =
            sentence(at) + " It depends on " + inputs + " inputs and " + (cone.size - inputs - 1) + " steps.";
        unpress();
    }
    function unpress() {
        document.querySelectorAll(".tree button").forEach(function (button) {
            button.setAttribute("aria-pressed", "false");
        });
    }
    function clear() {
        selected = -1;
        light(null);
        reading.textContent = "";
        unpress();
    }
    document.querySelectorAll(".tree button").forEach(function (button) {
        button.addEventListener("click", function () {
            if (button.getAttribute("aria-pressed") === "true") return clear();
            unpress();
            button.setAttribute("aria-pressed", "true");
            const chosen = new Set(button.dataset.blocks.split(",").map(Number));
            light(function (at) {
                return nodes[at].kind !== 0 && nodes[at].kind !== 5 && chosen.has(nodes[at].block);
            });
            const count = nodes.filter(function (node) {
                return node.kind > 0 && node.kind < 5 && chosen.has(node.block);
            }).length;
            reading.textContent = button.textContent + ": " + count + " steps are highlighted.";
        });
    });
    const actions = {
        in: function () {
            zoom(1 / 1.4);
        },
        out: function () {
            zoom(1.4);
        },
        fit: fit,
        clear: clear,
    };
    document.querySelectorAll("[data-view]").forEach(function (button) {
        button.addEventListener("click", actions[button.dataset.view]);
    });
    holder.addEventListener("keydown", function (event) {
        const keys = {
            ArrowLeft: function () {
                move(-0.1, 0);
            },
            ArrowRight: function () {
                move(0.1, 0);
            },
            ArrowUp: function () {
                move(0, -0.1);
            },
            ArrowDown: function () {
                move(0, 0.1);
            },
            "+": actions.in,
            "=": actions.in,
            "-": actions.out,
            0: fit,
            Escape: clear,
            n: function () {
                select((selected + 1) % nodes.length);
            },
            p: function () {
                select((selected - 1 + nodes.length) % nodes.length);
            },
        };
        const action = keys[event.key] || keys[event.key.toLowerCase()];
        if (action && !event.ctrlKey && !event.metaKey) {
            action();
            event.preventDefault();
        }
    });
})();
