// Loads the module, then starts the part that is shown; the others start when they are first opened.
"use strict";
(function () {
    const status = document.getElementById("status"),
        began = performance.now(),
        started = {};
    zulg.load().then(
        function (routines) {
            zulg.routines = routines;
            function begin(name) {
                if (!started[name]) {
                    started[name] = true;
                    zulg[name](routines);
                } else if (name === "mdct") zulg.runMdct();
                else if (name === "signal") zulg.runSignal();
            }
            const panels = { signal: "One transform", picture: "A picture in blocks", mdct: "MDCT" },
                bar = document.getElementById("parts");
            function open(name) {
                Object.keys(panels).forEach(function (each) {
                    document.getElementById(each).hidden = each !== name;
                    const button = document.getElementById("open-" + each);
                    button.setAttribute("aria-selected", String(each === name));
                    button.tabIndex = each === name ? 0 : -1;
                });
                begin(name);
            }
            Object.keys(panels).forEach(function (name) {
                const button = document.createElement("button"),
                    panel = document.getElementById(name);
                button.type = "button";
                button.id = "open-" + name;
                button.textContent = panels[name];
                button.setAttribute("role", "tab");
                button.setAttribute("aria-controls", name);
                panel.setAttribute("role", "tabpanel");
                panel.setAttribute("aria-labelledby", button.id);
                button.addEventListener("click", function () {
                    open(name);
                });
                bar.appendChild(button);
            });
            bar.addEventListener("keydown", function (event) {
                const names = Object.keys(panels),
                    step = { ArrowRight: 1, ArrowLeft: names.length - 1 }[event.key];
                if (!step) return;
                const next = names[(names.indexOf(document.activeElement.id.slice(5)) + step) % names.length];
                open(next);
                document.getElementById("open-" + next).focus();
            });
            open("signal");
            zulg.firstResult = performance.now();
            status.textContent =
                "zulgenpx " +
                routines.version +
                " runs in this page: first result " +
                Math.round(performance.now() - began) +
                " ms after the scripts. Nothing leaves the page.";
        },
        function (error) {
            status.textContent =
                "This browser cannot run the module: " + error.message + ". It needs WebAssembly with SIMD.";
            status.classList.add("wrong");
        },
    );
})();
