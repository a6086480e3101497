"""Plain Markdown of the tree, as Doxygen wants it."""

import os
import posixpath
import re

FENCE = re.compile(r"^\s*(`{3,}|~{3,})")
HEADING = re.compile(r"^(#{1,4}) +(.*?)\s*#*$")
LINK = re.compile(r"(!?)\[((?:[^\[\]]|\[[^\]]*\])*)\]\(\s*([^)\s]+)(?:\s+\"[^\"]*\")?\s*\)")
CODE_SPAN = re.compile(r"(`+)(?!`)(.+?)(?<!`)\1(?!`)")
SNIPPET = re.compile(r"^\s*<!--\s*snippet:.*-->\s*$")
COMMENT = re.compile(r"^<!--.*?-->$")


def name_of(place):
    """The name of the page that stands at a place of the tree."""
    return "page_" + re.sub(r"\W+", "_", place.removeprefix("docs/").removesuffix(".md")).lower()


def title_of(text):
    return re.search(r"^# +(.*)$", text, re.M)[1].strip()


def slug_of(heading, seen):
    """The name that a repository's web page gives a heading; `seen` counts those of the page."""
    plain = re.sub(r"\[([^\]]*)\]\([^)]*\)", r"\1", heading).replace("`", "")
    slug = re.sub(r"[^\w\- ]", "", plain.lower()).replace(" ", "-")
    count = seen.get(slug, 0)
    seen[slug] = count + 1
    return f"{slug}-{count}" if count else slug


def anchor_of(place, slug):
    return f"{name_of(place)}-{slug}"


def in_code(span):
    """A code span in which Doxygen leaves the per cent signs that it takes for its own: those before a letter, except
    between quotation marks."""
    parts = re.split(r"(\"[^\"]*\")", span)
    return "".join(part if part.startswith('"') else re.sub(r"%(?=[A-Za-z])", "%%", part) for part in parts)


def in_text(text):
    """Text without the characters that would be commands. Between quotation marks Doxygen would take a backslash before
    the second one for a part of it."""
    if "\\" in text:
        text = text.replace('"', "&quot;")
    return re.sub(r"([\\@])", r"\\\1", text)


def escape(text):
    """A line that Doxygen shall take as it is."""
    spans = []
    parts = []
    end = 0
    for span in CODE_SPAN.finditer(text):
        parts += [in_text(text[end:span.start()]), f"\x01{len(spans)}\x01"]
        spans.append(in_code(span[0]))
        end = span.end()
    parts.append(in_text(text[end:]))
    # Doxygen knows no bold text that begins or ends with code.
    line = re.sub(r"\*\*(?=\S)(.+?)(?<=\S)\*\*", r"<b>\1</b>", "".join(parts))
    return re.sub(r"\x01(\d+)\x01", lambda match: spans[int(match[1])], line)


class Page:
    def __init__(self, place, texts, of_class):
        self.place = place
        self.folder = place if place.startswith("examples/") else posixpath.dirname(place)
        self.texts = texts
        self.of_class = of_class
        self.groups = {posixpath.dirname(header) for header in of_class.values()}

    def link(self, match):
        is_picture, text, target = match[1], match[2], match[3]
        if re.match(r"[a-z]+:", target):
            return match[0]
        path, _, slug = target.partition("#")
        path = posixpath.normpath(posixpath.join(self.folder, path)) if path else self.place
        if path.endswith("/README.md") and path not in self.texts:
            path = posixpath.dirname(path)
        if path.startswith("docs/pictures/"):
            file = posixpath.basename(path)
            return f"![{text}]({file})" if is_picture else f'<a href="{file}">{text}</a>'
        if path in self.texts:
            return f'@ref {anchor_of(path, slug) if slug else name_of(path)} "{text.replace("`", "")}"'
        if path in self.groups:
            return f'@ref {path} "{text.replace("`", "")}"'
        name = os.path.basename(path).removesuffix(".h")
        if name in self.of_class and self.of_class[name] == path:
            return f'@ref {name} "{text.replace("`", "")}"'
        # The rest of the tree is not on the site.
        return f"`{path}`" if text.replace("`", "") in path else f"{text} (`{path}`)"

    def line(self, text):
        """A line of text with its links; code spans stay untouched, those that are the text of a link do not."""
        links = []

        def keep(match):
            links.append(self.link(match))
            return f"\x00{len(links) - 1}\x00"

        kept = LINK.sub(keep, text)
        return re.sub(r"\x00(\d+)\x00", lambda m: links[int(m[1])], escape(kept))


def for_doxygen(text, place, texts, of_class, is_main):
    page = Page(place, texts, of_class)
    out = []
    seen = {}
    fence = ""
    first = True
    for line in text.split("\n"):
        mark = FENCE.match(line)
        if fence:
            out.append(line)
            if mark and line.strip() == fence:
                fence = ""
        elif mark:
            fence = mark[1]
            out.append(line)
        elif SNIPPET.match(line) or COMMENT.match(line.strip()):
            continue
        elif (heading := HEADING.match(line)):
            slug = slug_of(heading[2], seen)
            label = (("mainpage" if is_main else name_of(place)) if first else anchor_of(place, slug))
            if is_main and not first:  # Doxygen would list its sections before the pages in the navigation
                out.append(f"<h1>{page.line(heading[2])}</h1>\n")
            else:
                out.append(f"{heading[1]} {page.line(heading[2])} {{#{label}}}")
            first = False
        elif line.startswith("    ") and (not out or not out[-1].strip() or out[-1].startswith("    ")):
            out.append(line)
        else:
            out.append(page.line(line))
    return "\n".join(out)
