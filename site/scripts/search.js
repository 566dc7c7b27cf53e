// The search in the head of each page, tabs, and buttons that copy code. The index is zulgSearchIndex: one line for
// each page, title, path and words with tabs between them.
"use strict";
(function () {
    const root = document.documentElement.dataset.root;
    const entries = zulgSearchIndex.split("\n").map(function (line) {
        const parts = line.split("\t");
        return {
            title: parts[0],
            path: parts[1],
            words: parts[2],
            sought: (
                parts[0] +
                " " +
                parts[0].replace(/([a-z])(?=[A-Z0-9])|_|::/g, "$1 ") +
                " " +
                parts[2]
            ).toLowerCase(),
        };
    });

    // How well an entry fits: 0 where a word is missing.
    function fit(entry, words, whole) {
        const title = entry.title.toLowerCase();
        if (title === whole) return 1000;
        let points = 0;
        for (const word of words) {
            const at = entry.sought.indexOf(word);
            if (at < 0) return 0;
            const isWhole = new RegExp("(^|[^a-z0-9])" + word.replace(/[^a-z0-9]/g, "\\$&") + "($|[^a-z0-9])").test(
                entry.sought,
            );
            points += isWhole ? 10 : 2;
            if (title.includes(word)) points += 3;
        }
        if (title.startsWith(whole)) points += 20;
        return points + 5 / entry.title.length;
    }
    function find(text, most) {
        const whole = text.trim().toLowerCase();
        const words = whole.split(/\s+/).filter(Boolean);
        if (words.length === 0) return [];
        return entries
            .map(function (entry) {
                return { entry: entry, points: fit(entry, words, whole) };
            })
            .filter(function (each) {
                return each.points > 0;
            })
            .sort(function (a, b) {
                return b.points - a.points;
            })
            .slice(0, most)
            .map(function (each) {
                return each.entry;
            });
    }
    window.zulgFind = find;

    const input = document.getElementById("search"),
        list = document.getElementById("found");
    let shown = [],
        chosen = -1;
    function close() {
        list.hidden = true;
        chosen = -1;
        input.setAttribute("aria-expanded", "false");
        input.removeAttribute("aria-activedescendant");
    }
    function show() {
        shown = find(input.value, 12);
        list.replaceChildren.apply(
            list,
            shown.map(function (entry, number) {
                const item = document.createElement("li"),
                    words = document.createElement("small");
                item.id = "found-" + number;
                item.setAttribute("role", "option");
                item.setAttribute("aria-selected", "false");
                item.textContent = entry.title;
                words.textContent = entry.words;
                item.appendChild(words);
                item.addEventListener("mousedown", function (event) {
                    event.preventDefault();
                    location.href = root + entry.path;
                });
                return item;
            }),
        );
        list.hidden = shown.length === 0;
        chosen = -1;
        input.setAttribute("aria-expanded", String(!list.hidden));
        input.removeAttribute("aria-activedescendant");
    }
    function choose(number) {
        if (shown.length === 0) return;
        chosen = (number + shown.length) % shown.length;
        Array.from(list.children).forEach(function (item, at) {
            item.setAttribute("aria-selected", String(at === chosen));
        });
        list.children[chosen].scrollIntoView({ block: "nearest" });
        input.setAttribute("aria-activedescendant", "found-" + chosen);
    }
    input.addEventListener("input", show);
    input.addEventListener("blur", close);
    input.addEventListener("keydown", function (event) {
        if (event.key === "ArrowDown") {
            choose(chosen + 1);
            event.preventDefault();
        }
        if (event.key === "ArrowUp") {
            choose(chosen - 1);
            event.preventDefault();
        }
        if (event.key === "Escape") close();
        if (event.key === "Enter" && shown.length > 0 && input.value.trim()) {
            event.preventDefault();
            location.href = root + shown[Math.max(chosen, 0)].path;
        }
    });
    document.addEventListener("keydown", function (event) {
        const isTyping = /^(INPUT|TEXTAREA|SELECT)$/.test(document.activeElement.tagName);
        if (event.key === "/" && !isTyping) {
            input.focus();
            event.preventDefault();
        }
    });

    // Tabs. What was chosen last is chosen on the next page, too.
    document.querySelectorAll(".tabs").forEach(function (tabs, group) {
        const sections = Array.from(tabs.children),
            bar = document.createElement("div");
        bar.className = "tab-list";
        bar.setAttribute("role", "tablist");
        let kept = null;
        try {
            kept = localStorage.getItem("tab-" + tabs.dataset.name);
        } catch (error) {
            /* none is kept */
        }
        const buttons = sections.map(function (section, number) {
            const button = document.createElement("button");
            button.type = "button";
            button.textContent = section.dataset.title;
            button.id = "tab-" + group + "-" + number;
            section.id = "panel-" + group + "-" + number;
            button.setAttribute("role", "tab");
            button.setAttribute("aria-controls", section.id);
            section.setAttribute("role", "tabpanel");
            section.setAttribute("aria-labelledby", button.id);
            button.addEventListener("click", function () {
                open(number);
            });
            bar.appendChild(button);
            return button;
        });
        function open(number) {
            sections.forEach(function (section, at) {
                section.hidden = at !== number;
                buttons[at].setAttribute("aria-selected", String(at === number));
                buttons[at].tabIndex = at === number ? 0 : -1;
            });
            try {
                localStorage.setItem("tab-" + tabs.dataset.name, sections[number].dataset.title);
            } catch (error) {
                /* not kept */
            }
        }
        bar.addEventListener("keydown", function (event) {
            const step = { ArrowRight: 1, ArrowLeft: -1 }[event.key];
            if (!step) return;
            const at = (buttons.indexOf(document.activeElement) + step + buttons.length) % buttons.length;
            open(at);
            buttons[at].focus();
        });
        tabs.insertBefore(bar, tabs.firstChild);
        tabs.classList.add("running");
        open(
            Math.max(
                0,
                sections.findIndex(function (section) {
                    return section.dataset.title === kept;
                }),
            ),
        );
    });

    document.querySelectorAll(".code-block").forEach(function (block) {
        if (!navigator.clipboard) return;
        const button = document.createElement("button");
        button.type = "button";
        button.className = "copy";
        button.textContent = "Copy";
        button.addEventListener("click", function () {
            navigator.clipboard.writeText(block.querySelector("code").textContent).then(function () {
                button.textContent = "Copied";
                setTimeout(function () {
                    button.textContent = "Copy";
                }, 1500);
            });
        });
        block.appendChild(button);
    });

    // The page that lists all that is found.
    const all = document.getElementById("all-found");
    if (all) {
        const sought = new URLSearchParams(location.search).get("q") || "";
        input.value = sought;
        const found = find(sought, 500);
        all.replaceChildren.apply(
            all,
            found.map(function (entry) {
                const item = document.createElement("li"),
                    link = document.createElement("a");
                link.href = root + entry.path;
                link.textContent = entry.title;
                item.append(link, " " + entry.words);
                return item;
            }),
        );
        document.getElementById("found-count").textContent = sought
            ? found.length + (found.length === 500 ? " or more" : "") + " found for “" + sought + "”"
            : "Type what you look for above.";
    }
})();
