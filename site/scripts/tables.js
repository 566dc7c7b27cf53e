// Tables that are sorted by the head of a column, and filters over the rows of a table.
"use strict";
(function () {
    function value(row, column) {
        const text = row.cells[column].textContent.trim();
        const number = parseFloat(text);
        return text !== "" && !Number.isNaN(number) && /^[-+]?[\d.]/.test(text) ? number : text;
    }
    function order(a, b) {
        if (a === "" || b === "") return a === b ? 0 : a === "" ? 1 : -1;
        if (typeof a === "number" && typeof b === "number") return a - b;
        return String(a).localeCompare(String(b), "en", { numeric: true });
    }
    document.querySelectorAll("table.sortable").forEach(function (table) {
        const heads = Array.from(table.tHead.rows[0].cells),
            body = table.tBodies[0];
        heads.forEach(function (head, column) {
            const button = document.createElement("button");
            button.type = "button";
            button.append.apply(button, Array.from(head.childNodes));
            head.replaceChildren(button);
            button.addEventListener("click", function () {
                const sign = head.getAttribute("aria-sort") === "ascending" ? -1 : 1;
                heads.forEach(function (other) {
                    other.removeAttribute("aria-sort");
                });
                head.setAttribute("aria-sort", sign === 1 ? "ascending" : "descending");
                const rows = Array.from(body.rows).map(function (row) {
                    return { row: row, value: value(row, column) };
                });
                rows.sort(function (a, b) {
                    return sign * order(a.value, b.value);
                });
                body.append.apply(
                    body,
                    rows.map(function (each) {
                        return each.row;
                    }),
                );
            });
        });
    });
    document.querySelectorAll("form.filter[data-table]").forEach(function (form) {
        const table = document.getElementById(form.dataset.table),
            count = form.querySelector("output");
        function run() {
            const chosen = new FormData(form);
            let shown = 0;
            for (const row of table.tBodies[0].rows) {
                let fits = true;
                for (const [name, text] of chosen) {
                    if (text === "") continue;
                    if (name === "words")
                        fits =
                            fits &&
                            text
                                .toLowerCase()
                                .split(/\s+/)
                                .every(function (word) {
                                    return row.textContent.toLowerCase().includes(word);
                                });
                    else if (name === "from") fits = fits && Number(row.dataset.length) >= Number(text);
                    else if (name === "to") fits = fits && Number(row.dataset.length) <= Number(text);
                    else fits = fits && row.dataset[name] === text;
                }
                row.hidden = !fits;
                shown += fits ? 1 : 0;
            }
            count.textContent = shown + " of " + table.tBodies[0].rows.length + " rows";
        }
        form.addEventListener("input", run);
        form.addEventListener("change", run);
        form.addEventListener("submit", function (event) {
            event.preventDefault();
        });
        run();
    });
})();
