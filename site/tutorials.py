def build(site, data):
    for name in ("index", "flags", "moving"):
        site.page(f"tutorials/{name}.html", name, f"<h1>{name}</h1>")
