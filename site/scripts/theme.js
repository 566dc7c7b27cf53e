// Light or dark: what the reader chose, otherwise what the system says.
"use strict";
(function () {
    const root = document.documentElement;
    function kept() {
        try {
            return localStorage.getItem("theme");
        } catch (error) {
            return null;
        }
    }
    if (kept()) root.dataset.theme = kept();
    document.addEventListener("DOMContentLoaded", function () {
        const button = document.getElementById("theme");
        button.addEventListener("click", function () {
            const isDark = root.dataset.theme
                ? root.dataset.theme === "dark"
                : matchMedia("(prefers-color-scheme: dark)").matches;
            root.dataset.theme = isDark ? "light" : "dark";
            try {
                localStorage.setItem("theme", root.dataset.theme);
            } catch (error) {
                /* a page opened as a file may not */
            }
            document.dispatchEvent(new Event("theme"));
        });
    });
})();
