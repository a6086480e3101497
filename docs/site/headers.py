"""Hands the public headers to Doxygen as the tree's own habits mean them.

- What needs no words is left out when no comment stands before it: entries of message maps (afx_msg; what a class
  does with mouse and keys is told with the class), what is deleted or written by the compiler (= default), copying as
  everybody expects it, and what is overridden of the framework or of a base that is not public.
- A comment holds for the overloads of the same name that follow it at once; so do conversions and operators.
- A comment that opens a group by itself, "The current cell. @{", holds for every member of it. So does the text of a
  named group that begins with "Each".
- Classes of a detail folder that stand between a public class and its public base are passed over.

Line numbers stay as they are.
"""

import re

WORDLESS = re.compile(r"""^(
      afx_msg\b.*;
    | .*=\s*(delete|default);
    | (C\w+)\(const\ \3&(\ \w+)?\);
    | (C\w+)&\ operator=\(const\ \5&(\ \w+)?\);
    )$""", re.X)
FRAMEWORK = re.compile(r"""\b(PreCreateWindow|PreTranslateMessage|WindowProc|OnInitDialog
    |DrawMark|OnClick|ShownState|Caption|IsInside|IsClickable)\(.*\)[^;]*\boverride;$""", re.X)
NAME = re.compile(r"(\boperator\b|~?\w+\s*(?=\())")
EACH = re.compile(r"@name [^\n]*\n[\s*]*(Each\b.*?)\s*(@\{\s*)?\*/", re.S)
SEVERAL = re.compile(r"\s*(static \w+) (\w+(?:, \w+)+);$")
INTERNAL_BASE = re.compile(r"public vant::detail::(Click|Mark)Ctrl\b")


def name_of(text):
    match = NAME.search(text)
    return match[1].strip() if match else ""


def one_line(comment):
    return re.sub(r"\s*\n\s*(\*(?!/))?\s*", " ", comment).strip()


class Reader:
    def __init__(self):
        self.out = []
        self.groups = []         # for each open group the words that hold for its members, or ""
        self.pending = ""        # the comment before the declaration to come
        self.held = ""           # the comment of the last declaration
        self.held_name = ""

    def comment(self, lines):
        """A whole comment."""
        text = "\n".join(lines)
        self.held = self.held_name = ""
        named = "@name" in text
        if "@}" in text:
            shared = self.groups.pop() if self.groups else ""
            if shared.startswith("/**"):
                lines = [""] * len(lines)
            self.pending = ""
        elif re.match(r"\s*(///|/\*\*)\s*@\{\s*(\*/)?$", text):
            if self.each:
                self.groups.append(self.each)
                self.each = ""
            else:
                self.groups.append("")
        elif "@{" in text and not named:
            text = text.replace("@{", "")
            lines = text.split("\n")
            self.groups.append("/**" + one_line(text).removeprefix("/**"))
            self.pending = text
        elif named:
            match = EACH.search(text)
            self.each = f"/*! {one_line(match[1])} */" if match else ""
            if "@{" in text:
                self.groups.append(self.each)
                self.each = ""
            self.pending = ""
        else:
            self.pending = text
        self.out += lines

    each = ""

    def declaration(self, line):
        """The line in which a declaration begins."""
        text = line.strip()
        name = name_of(text)
        shared = next((g for g in reversed(self.groups) if g), "")
        if self.pending:
            self.held, self.held_name = one_line(self.pending), name
            if not text.startswith(("template", "requires")):
                self.pending = ""
            return line
        if "///<" in text or "/**<" in text:
            return line
        if WORDLESS.match(text) or FRAMEWORK.search(text):
            return ""
        if name and name == self.held_name:
            return f"{self.held} {line}"
        if shared and (match := SEVERAL.match(line)):
            return " ".join(f"{shared} {match[1]} {variable};" for variable in match[2].split(", "))
        return f"{shared} {line}" if shared else line

    def read(self, source):
        lines = []               # of the comment being read
        begins = True            # whether a declaration may begin in this line
        base = depth = 0
        for line in source.split("\n"):
            text = line.strip()
            if lines or text.startswith(("/**", "///")):
                lines.append(line)
                if text.startswith("///") or text.endswith("*/"):
                    self.comment(lines)
                    lines = []
                continue
            if not text:
                self.held = self.held_name = ""
            shown = line
            if text and begins and not text.startswith(("//", "#", "}", "{", "public:", "private:", "protected:")):
                shown = self.declaration(line)
            if text:
                begins = text.endswith((";", "}", "{", ":")) or "///<" in text or text.startswith(("#", "//"))
            self.out.append(shown)
        return "\n".join(self.out)


def for_doxygen(source, group):
    """A header's text, all of it in a group."""
    text = Reader().read(INTERNAL_BASE.sub("public CECtrl", source))
    text = text.replace("#pragma once", f"/** @addtogroup {group} */ /** @{{ */", 1)
    classes, end, definitions = text.rpartition("\n};\n")
    if end and "::" in definitions:  # of templates' members, which are told in the class
        return f"{classes}{end}/** @}} */ /** @cond */{definitions}/** @endcond */\n"
    return text + "/** @} */\n"
