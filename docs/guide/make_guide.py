#!/usr/bin/env python3
"""Makes the two PDFs of the Help menu from the sources beside this file: make_guide.py FOLDER VERSION

The user guide consists of the chapters, one Markdown file each, in the order of their names; keys.toml and
messages.toml are tables, which a chapter inserts with a line such as {keys}. The list of keyboard shortcuts is
keys.toml alone. The same sources make the same bytes.
"""

import html
import io
import os
import re
import sys
import tomllib
import uuid
from pathlib import Path

import markdown
from PIL import Image
from weasyprint import HTML, default_url_fetcher

SOURCES = Path(__file__).resolve().parent
ROOT = SOURCES.parents[1]
PICTURES = [ROOT / "docs/screens", ROOT / "docs/pictures"]

GUIDE = "Velmor ZR3 User Guide"
SHORTCUTS = "Velmor ZR3 Keyboard Shortcuts"

MILLIMETRES_PER_PIXEL = 0.128  # all screens at the same scale, so that their letters have the same size
WIDEST = 164  # millimetres between the margins

# The tables of messages.toml besides the messages themselves, and their headings.
WORDS = {"error": ["Number", "Words", "What it means"], "progress": ["Words", "What is going on"],
         "note": ["Words", "What they mean"], "tool": ["Words", "What they mean"]}


def escaped(text):
    return html.escape(text, quote=False)


def slug(text):
    return re.sub(r"[^a-z0-9]+", "-", text.lower()).strip("-")


def picture(name):
    for folder in PICTURES:
        if (folder / name).is_file():
            return folder / name
    raise SystemExit(f"There is no picture {name} in {', '.join(map(str, PICTURES))}.")


def fetched(url):
    """Pictures come from their folders, with no more colours than a screen needs; nothing is fetched from elsewhere."""
    scheme, _, name = url.partition(":")
    if scheme != "picture":
        raise SystemExit(f"The sources of the guide refer to {url}.")
    image = Image.open(picture(name)).convert("RGB").quantize(192, dither=Image.Dither.NONE)
    buffer = io.BytesIO()
    image.save(buffer, "PNG", optimize=True)
    return {"string": buffer.getvalue(), "mime_type": "image/png"}


# From the sources to HTML

def keys_of(text):
    """[[Ctrl+N]] is a key, or several that are pressed together."""
    def caps(match):
        return "+".join(f"<kbd>{escaped(key)}</kbd>" for key in match[1].split("+"))
    return re.sub(r"\[\[(.+?)\]\]", caps, text)


def captions_in(text):
    """A field is named as on its screen, but without its colon in the middle of a sentence."""
    return re.sub(r":\*\*(?=[.,;:)])", "**", text)


def figure(match):
    alt, name, width = match["alt"], match["name"], match["width"]
    pixels = Image.open(picture(name)).width
    millimetres = float(width) if width else min(pixels * MILLIMETRES_PER_PIXEL, WIDEST)
    return (f'<figure><img src="picture:{name}" alt="{html.escape(alt)}" style="width: {millimetres:.1f}mm">'
            f"<figcaption>{escaped(alt)}</figcaption></figure>")


def figures(text):
    """A picture is a separate paragraph: ![What it shows](frmMain.png) or ![...](frmMain.png =120), in millimetres."""
    return re.sub(r"^!\[(?P<alt>.+?)\]\((?P<name>[\w.-]+)(?: =(?P<width>\d+))?\)$", figure, text, flags=re.MULTILINE)


def message_text(text):
    """{words in braces} stand for text that varies. An option of zr3tool stays on one line."""
    paragraphs = [re.sub(r"\{(.+?)\}", r"<i>\1</i>", re.sub("--[a-z-]+", r'<span class="option">\g<0></span>',
                         escaped(part))).replace("\n", "<br>") for part in text.strip().split("\n\n")]
    return "".join(f"<p>{part}</p>" for part in paragraphs)


def inline(text):
    made = markdown.markdown(keys_of(captions_in(text)), extensions=["smarty"])
    return made.removeprefix("<p>").removesuffix("</p>")


def key_tables(groups, heading):
    made = []
    for group in groups:
        note = f'<p class="note">{inline(group["note"])}</p>' if "note" in group else ""
        rows = "".join(f'<tr><td>{keys_of(row["keys"])}</td><td>{inline(row["does"])}</td></tr>' for row in group["key"])
        made.append(f'<section class="keys"><{heading} id="keys-{slug(group["title"])}">{escaped(group["title"])}'
                    f"</{heading}>{note}<table><tbody>{rows}</tbody></table></section>")
    return "\n".join(made)


def message_id(message):
    return "message-" + slug(message["title"] + " " + message["text"])[:60]


def message_tables(groups):
    made = []
    for group in groups:
        made.append(f'<h2 id="messages-{slug(group["title"])}">{escaped(group["title"])}</h2>')
        if "note" in group:
            made.append(f'<p>{inline(group["note"])}</p>')
        for message in group["message"]:
            # A window that asks for a folder has only its title.
            title = f'<p class="title">{escaped(message["title"])}</p>' if message["title"] != message["text"] else ""
            made.append(
                f'<section class="message" id="{message_id(message)}">'
                f'<div class="box">{title}{message_text(message["text"])}</div>'
                f'<p><span class="lead">What it means.</span> {inline(message["means"])}</p>'
                f'<p><span class="lead">What to do.</span> {inline(message["do"])}</p></section>')
    return "\n".join(made)


def words_table(name, rows, headings):
    """A row for each text that is shown outside messages."""
    head = "".join(f"<th>{heading}</th>" for heading in headings)
    made = []
    for row in rows:
        number = f'<td>{row["number"]}</td>' if "number" in row else ""
        made.append(f'<tr id="{words_id(name, row)}">{number}<td>{message_text(row["words"])[3:-4]}</td>'
                    f'<td>{inline(row["means"])}</td></tr>')
    return f'<table class="words {name}"><thead><tr>{head}</tr></thead><tbody>{"".join(made)}</tbody></table>'


def words_id(name, row):
    return f'{name}-{row.get("number", "")}-{slug(row["words"])[:40]}'


def first_words(text):
    first = re.sub(r"\{.+?\}", "…", text.strip().split("\n")[0])
    return first if len(first) < 76 else first[:70].rsplit(" ", 1)[0] + " …"


def message_index(messages):
    """Every message by its first words and by its title, in alphabetical order."""
    entries = set()
    for group in messages["group"]:
        for message in group["message"]:
            entries.add((first_words(message["text"]), message_id(message), False))
        # Consecutive messages with the same title are listed under one title.
        titles = {message["title"]: message_id(message) for message in reversed(group["message"])
                  if message["title"] != message["text"]}
        entries |= {(title, target, True) for title, target in titles.items()}
    for name in WORDS:
        entries |= {(first_words(row["words"]), words_id(name, row), False) for row in messages[name]}
    rows = []
    for words, target, is_title in sorted(entries, key=lambda entry: (re.sub(r"\W+", "", entry[0]).lower(), entry)):
        shown = f"<b>{escaped(words)}</b>" if is_title else escaped(words)
        rows.append(f'<li><a class="entry" href="#{target}">{shown}</a></li>')
    return '<ul class="index">' + "".join(rows) + "</ul>"


def with_pages(made):
    """Adds the page number to every reference within the guide."""
    return re.sub(r'<a href="#([^"]+)">(.*?)</a>', r'<a href="#\1">\2</a> (page&nbsp;<a class="page" href="#\1"></a>)', made)


def with_starts(made):
    """A list that continues after a table or a picture keeps its numbers."""
    return re.sub(r'<ol start="(\d+)">', lambda match: f'<ol style="counter-reset: list-item {int(match[1]) - 1}">', made)


def with_lead_ins(made):
    """Keeps the introduction to a table or listing with it, and a heading and its text with the screen's picture."""
    made = re.sub(r"<p>((?:(?!</p>).)*</p>\s*<(?:table|pre)\b)", r'<p class="lead-in">\1', made, flags=re.DOTALL)
    return re.sub(r"(</h[23]>\s*)<p>((?:(?!</p>).)*</p>\s*<figure>)", r'\1<p class="lead-in">\2', made, flags=re.DOTALL)


def chapters(tables):
    converter = markdown.Markdown(extensions=["tables", "attr_list", "def_list", "sane_lists", "smarty", "admonition"],
                                  output_format="html")
    for file in sorted(SOURCES.glob("[0-9]*.md")):
        text = file.read_text(encoding="utf-8")
        made = converter.reset().convert(figures(keys_of(captions_in(text))))
        for name, table in tables.items():
            made = made.replace(f"<p>{{{name}}}</p>", table)
        yield f'<section class="chapter">{with_lead_ins(with_starts(with_pages(made)))}</section>'


def numbered(body):
    """Numbers the chapters, gives every heading an anchor, and returns the contents too."""
    contents, count = [], 0
    appendix = False

    def heading(match):
        nonlocal count, appendix
        level, attributes, text = match["level"], match["attributes"], match["text"]
        known = re.search(r'id="([^"]+)"', attributes)
        name = known[1] if known else slug(re.sub(r"<.*?>", "", text))
        number = ""
        if level == "1":
            if text.startswith("Appendix") or text.startswith("Index"):
                appendix = True
            if not appendix:
                count += 1
                number = f'<span class="number">{count}</span> '
        contents.append(f'<li class="level{level}"><a href="#{name}">{number}{text}</a></li>')
        if not known:
            attributes += f' id="{name}"'
        return f"<h{level}{attributes}>{number}{text}</h{level}>"

    body = re.sub(r"<h(?P<level>[12])(?P<attributes>[^>]*)>(?P<text>.*?)</h(?P=level)>", heading, body)
    return body, '<nav class="contents"><h1 class="unnumbered">Contents</h1><ul>' + "".join(contents) + "</ul></nav>"


def tables_of(keys, messages):
    made = {"keys": key_tables(keys["group"], "h2"), "messages": message_tables(messages["group"]),
            "index of messages": message_index(messages)}
    for name, headings in WORDS.items():
        rows = sorted(messages[name], key=lambda row: (isinstance(row.get("number"), str), row.get("number", 0)))
        made[name] = words_table(name, rows, headings)
    return made


def page(title, description, body, kind):
    css = (SOURCES / "guide.css").read_text(encoding="utf-8")
    return (f'<!DOCTYPE html><html lang="en-GB"><head><meta charset="utf-8"><title>{title}</title>'
            f'<meta name="author" content="Velmor"><meta name="description" content="{description}">'
            f"<style>{css}</style></head><body class=\"{kind}\">{body}</body></html>")


def guide(version, keys, messages):
    body, contents = numbered("\n".join(chapters(tables_of(keys, messages))))
    cover = (f'<section class="cover"><p class="maker">Velmor <span>ZR3</span></p><p class="what">User Guide</p>'
             f'<p class="about">Drafting civil legal-aid costs claims on forms Claim 1 and Claim 1A</p>'
             f'<p class="version">Version {escaped(version)}</p></section>')
    return page(GUIDE, "How to draft a civil legal-aid costs claim with Velmor ZR3", cover + contents + body, "guide")


def shortcuts(version, keys):
    body = (f'<header><h1>Velmor ZR3 <span>Keyboard Shortcuts</span></h1><p>Version {escaped(version)}</p></header>'
            f'<div class="columns">{key_tables(keys["group"], "h2")}</div>')
    return page(SHORTCUTS, "Every key of Velmor ZR3", body, "shortcuts")


def write(text, path):
    document = HTML(string=text, base_url="picture:", url_fetcher=fetched)
    # An identifier from the content, and fonts without a time stamp, so that the same sources make the same file.
    os.environ["SOURCE_DATE_EPOCH"] = "0"
    identifier = uuid.uuid5(uuid.NAMESPACE_URL, text).bytes
    document.write_pdf(path, identifier=identifier, variant="pdf/ua-1")


def table(name):
    with open(SOURCES / name, "rb") as file:
        return tomllib.load(file)


def main(folder, version):
    folder = Path(folder)
    folder.mkdir(parents=True, exist_ok=True)
    keys, messages = table("keys.toml"), table("messages.toml")
    write(guide(version, keys, messages), folder / f"{GUIDE}.pdf")
    write(shortcuts(version, keys), folder / f"{SHORTCUTS}.pdf")


if __name__ == "__main__":
    if len(sys.argv) != 3:
        raise SystemExit(__doc__)
    main(*sys.argv[1:])
