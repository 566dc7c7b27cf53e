def build(site, data):
    site.page("playground/index.html", "Playground", "<h1>Playground</h1>")
