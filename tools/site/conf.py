"""How Sphinx makes the site: scripts/site calls it on a folder with links to what the repository holds, the function
reference's HTML pages as reference/ and README.md as index.md."""

import fnmatch
import pathlib
import re
import subprocess

project = "lanemath"
html_title = project
html_short_title = project
html_theme = "furo"
extensions = ["myst_parser"]
myst_heading_anchors = 4
source_suffix = {suffix: "markdown" for suffix in (".md", ".html", ".1")}
include_patterns = ["**.md", "docs/man/*.1", "reference/*.html"]
exclude_patterns = ["README.md"]
highlight_language = "none"
smartquotes = False
templates_path = ["templates"]
html_static_path = ["static"]
html_css_files = ["site.css"]
html_js_files = ["sort.js"]
html_show_sphinx = False
html_show_copyright = False
html_copy_source = False
html_show_search_summary = False  # it would fetch the pages found, which browsers refuse for files

# A document that no other part names stands at the head of the guide.
NAVIGATION = {
    "Guide": ["docs/design", "CONTRIBUTING", "SECURITY", "CHANGELOG"],
    "Reference": ["reference/index", "genindex", "docs/man/*"],
    "Reports": ["docs/performance", "docs/accuracy"],
}


def toctree(entries, *options):
    return "\n".join(["", "```{toctree}", ":hidden:", *options, *entries, "```", ""])


def navigation(documents):
    named = ["index", "reference/*"] + [pattern for patterns in NAVIGATION.values() for pattern in patterns]
    others = sorted(d for d in documents if not any(fnmatch.fnmatch(d, pattern) for pattern in named))
    text = ""
    for caption, patterns in NAVIGATION.items():
        found = [d for pattern in patterns for d in sorted(fnmatch.filter(documents, pattern))]
        text += toctree(["Start <self>", *others, *found] if caption == "Guide" else found, f":caption: {caption}")
    return text


def sections(title, body, heading):
    """A page of HTML as Markdown: its headings in Markdown, for navigation and search, the rest as it is."""
    first, *others = re.split(heading, body)
    text = f"# {title}\n"
    for name, content in zip(["", *others[::2]], [first, *others[1::2]]):
        text += f"\n## {name}\n" if name else ""
        if content.strip():
            text += f"\n````{{raw}} html\n{content.strip()}\n````\n"
    return text


def reference_page(docname, page):
    title, body = re.search(r"<h1>(.*?)</h1>(.*)</body>", page, re.S).groups()
    names = re.search(r"<p>(.*?):", body)[1].replace("lanemath_", "").split(", ")
    for plain, styled in (
        (r'<div class="wide"><table>', '<div class="table-wrapper"><table class="docutils">'),
        (r"<pre>(.*?)</pre>", r'<div class="highlight"><pre>\1</pre></div>'),
        (r"<code>", '<code class="docutils literal">'),
        (r"\b(accuracy|design|performance)\.md", r'<a href="../docs/\1.html">\1.md</a>'),
        (r"<code[^>]*>(lanemath-\w+)</code>\(1\)", r'<a href="../docs/man/\1.html">\1</a>'),
    ):
        body = re.sub(plain, styled, body, flags=re.S)
    text = sections(title, body, "<h2>(.*?)</h2>")
    if docname == "reference/index":
        return text.replace("# lanemath", "# Function reference", 1) + toctree(
            f"{page[len('lanemath_'):]} <{page}>" for page in re.findall(r'<dt><a href="(\w+)\.html">', body))
    return "".join(["```{index} ", "; ".join(names), "\n```\n\n", text])


def manual_page(docname, source):
    run = subprocess.run(["mandoc", "-T", "html", "-O", "fragment"], input=source, text=True, capture_output=True,
                         check=True)
    body = re.sub(r"</?section[^>]*>|<table class=\"(head|foot)\">.*?</table>", "", run.stdout, flags=re.S)
    return sections(docname.rpartition("/")[2], body, r"<h1[^>]*><a[^>]*>(.*?)</a></h1>")


def read(app, docname, source):
    path = app.env.doc2path(docname)
    if path.endswith(".html"):
        source[0] = reference_page(docname, source[0])
    elif path.endswith(".1"):
        source[0] = manual_page(docname, source[0])
    else:
        source[0] = re.sub(r"(\]\((?:\.\./)*)README\.md", r"\1index.md", source[0])
        if docname == "index":
            source[0] += navigation(app.env.found_docs | {"genindex"})


def folder(app, env, node, content):
    """A link to a folder of the repository, which the site does not hold, is its text alone."""
    document = pathlib.Path(env.doc2path(node["refdoc"]))
    return content if (document.parent / node["reftarget"]).is_dir() else None


def setup(app):
    app.connect("source-read", read)
    app.connect("missing-reference", folder)
