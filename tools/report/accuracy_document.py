"""Makes docs/accuracy.md and its plots from the figures of docs/accuracy.json and from the record of errors."""
import csv
import ctypes
import decimal
import math
import pathlib
import re
import statistics
import struct
import tomllib

import common

WORDS = tomllib.loads((pathlib.Path(__file__).parent / "accuracy.toml").read_text())
PRECISIONS = {"float": "single precision", "double": "double precision"}
COLOURS = ["#1f5fa8", "#e08a1e", "#4f9d4f", "#b04a6a"]
# The least error that a logarithmic scale shows.
LEAST = 0.1


class Contradiction(Exception):
    pass


def single(name):
    return name.endswith("f") and name != "erf"


def base(name):
    return name[:-1] if single(name) else name


def numbers(name, place):
    """The arguments at a place, by their bit patterns."""
    words = place.split()
    found = []
    for i, word in enumerate(words):
        integer = i == 1 and base(name) in ("pown", "rootn", "ldexp")
        kind = ("<I", "<i") if integer else ("<I", "<f") if len(word) == 10 else ("<Q", "<d")
        found.append(struct.unpack(kind[1], struct.pack(kind[0], int(word, 16)))[0])
    return found


def abscissa(over, place, name):
    """Where in a plot this place is."""
    found = numbers(name, place)
    if over == "argument":
        return found[0]
    if over == "quotient":
        return abs(found[0] / found[1])
    exponent = math.log2(abs(found[0])) * (1 / found[1] if base(name) == "rootn" else found[1])
    return 2.0 ** min(max(exponent, -1074), 1023)


def rounded_up(text, digits):
    value = decimal.Decimal(text)
    if not value:
        return value
    unit = decimal.Decimal(1).scaleb(value.adjusted() - digits + 1)
    return value.quantize(unit, rounding=decimal.ROUND_CEILING)


def number(value):
    """As a person would write it: three digits of a small one, 6.15e7."""
    rounded = float(f"{float(value):.3g}")
    return f"{rounded:g}" if rounded < 1e5 else f"{rounded:.3g}".replace("e+0", "e").replace("e+", "e")


def bound(line):
    return line["anywhere"] or number(rounded_up(line["error"], 3))


def name_of(name, variants):
    first = name if "default" in variants else f"{name}_{variants[0]}"
    rest = [f"`_{each}`" for each in variants if each != "default"][0 if "default" in variants else 1:]
    return " ".join([f"`{first}`"] + rest)


def place_of(name, place):
    """As short as it can be in the argument's own precision."""
    def shortest(value):
        if isinstance(value, int) or not single(name):
            return repr(value)
        return next(text for digits in range(1, 10)
                    if ctypes.c_float(float(text := f"{value:.{digits}g}")).value == value)
    return ", ".join(map(shortest, numbers(name, place))) if place else ""


def check(figures, record):
    """The figures of a run over all inputs are the record; others are not above it."""
    wrong = []
    for name, operation in figures["operations"].items():
        for form in operation["forms"]:
            whole = None
            for part, found in [("", form), *form["parts"].items()]:
                lines = [line for line in record if line["operation"] == name and line["part"] == part and
                         line["width"] == (str(form["width"]) if form["width"] else "") and
                         set(line["variants"].split()) & set(form["variants"])]
                if not lines and part:
                    continue
                if len(lines) != 1:
                    wrong.append(f"{name} {form['variants']} has no line")
                    continue
                line, error = lines[0], float(found["error"])
                share = f"{100 * found['rounded'] / found['lanes']:.4f}"
                if error > float(line["error"]) or operation["all"] and (
                        (error, found["at"], share) != (float(line["error"]), line["at"], line["rounded"])):
                    wrong.append(f"{name_of(name, form['variants'])} {part}: {found['error']} at {found['at']}")
    if wrong:
        raise Contradiction("; ".join(wrong))


def table(heading, rows):
    """The first column is text, the others are numbers."""
    lines = [f"| {' | '.join(heading)} |", "|---" + "|--:" * (len(heading) - 1) + "|"]
    return "\n".join(lines + [f"| {' | '.join(row)} |" for row in rows])


def form_text(line):
    text = name_of(line["operation"], line["variants"].split())
    if line["width"]:
        text += f" at width {line['width']}"
    return f"{text}: {line['part']}" if line["part"] else text


def errors_table(lines, figures):
    rows = []
    for line in lines:
        operation = figures["operations"].get(line["operation"])
        inputs = "all" if line["search"].startswith("all inputs") else "searched" if operation else "drawn"
        rows.append([form_text(line), line["error"],
                     "" if line["part"] else bound(line) + (" *any*" if line["anywhere"] else ""),
                     line["rounded"] and f"{line['rounded']} %", place_of(line["operation"], line["at"]), inputs])
    return table(["Form", "error", "bound", "rounded", "at", "inputs"], rows)


def short_table(record, figures):
    """A line for each family and precision: the forms, and the largest errors."""
    rows = []
    for family in WORDS["family"]:
        for precision in PRECISIONS:
            of = [line for line in record if figures["operations"].get(line["operation"], {}).get("family") ==
                  family["name"] and not line["part"] and single(line["operation"]) == (precision == "float")]
            if not of:
                continue
            kinds = [[line for line in of if ("default" in line["variants"]) == default] for default in (True, False)]
            worst = [max(kind, key=lambda line: float(line["error"])) for kind in kinds if kind]
            cells = [f"{number(rounded_up(line['error'], 3))} {name_of(line['operation'], line['variants'].split())}"
                     for line in worst]
            rows.append([f"{family['title']}, {precision}", str(len(of)),
                         str(sum(line["search"].startswith("all inputs") for line in of)), *cells,
                         *[""] * (2 - len(cells))])
    return table(["Family", "forms", "all inputs", "largest, default", "largest, other variants"], rows)


def shares_table(path, figures):
    rows = []
    for line in csv.DictReader(path.open()):
        text = form_text(line | {"variants": "default"})
        rows.append([text, f"{int(line['lanes']) // 10**6} million",
                     f"{100 * int(line['rounded']) / int(line['lanes']):.5f} %", line["error"],
                     place_of(line["operation"], line["at"])])
    return table(["Form", "lanes", "rounded", "error", "at"], rows)


class Axis:
    """Magnitudes from left to right, by their binades; those of negative arguments mirrored to the left of them."""
    COLUMNS = 100

    def __init__(self, name):
        low, *high = WORDS["axis"][base(name)]
        self.least = math.log2(low) if low else -149 if single(name) else -1074
        self.span = math.log2(high[0] if single(name) else high[1]) - self.least

    def columns(self, cell):
        """In which columns the magnitudes are that begin with these bits: exponent and three bits of the fraction."""
        low, high = (math.log2(struct.unpack("<d", struct.pack("<Q", each << 49))[0] or 2**-1074) - self.least
                     for each in (cell, min(cell + 1, 0x3FF7)))
        if high <= 0 or low >= self.span:
            return range(0)
        first, last = (int(max(end, 0) / self.span * self.COLUMNS) for end in (low, high - 1e-6))
        return range(first, min(last, self.COLUMNS - 1) + 1)

    def mirrored(self, at):
        return -at - 0.04 * self.span

    def position(self, value):
        """Of a place, or of the end that is nearest to it."""
        if not value:
            return 0
        at = min(max(math.log2(min(abs(value), 1.7e308)) - self.least, 0), self.span)
        return self.mirrored(at) if value < 0 else at

    def ticks(self, both):
        decades = [k for k in range(-323, 309) if -1e-9 <= k * math.log2(10) - self.least <= self.span + 1e-9]
        step = next(step for step in (1, 2, 3, 5, 10, 20, 50, 100) if len(decades) / step <= (4 if both else 8))
        found = [(f"{10.0**k:g}" if -3 <= k <= 4 else f"1e{k}", k * math.log2(10) - self.least)
                 for k in decades if k % step == 0]
        if both:
            found = [(text, at) for text, at in found if at > 0.08 * self.span]
            found += [(f"-{text}", self.mirrored(at)) for text, at in found]
        return ", ".join(f'"{text}" {at:.3f}' for text, at in found)

    def points(self, curves):
        """The lines of a plot's data."""
        width = self.span / self.COLUMNS
        runs = [[((i + 0.5) * width, error) for i, error in enumerate(curve) if error is not None] for curve in curves]
        return "\n\n".join("\n".join(f"{self.mirrored(at) if sign else at:.2f} {max(error, LEAST):.3g}" for at, error in run)
                           for sign, run in enumerate(runs) if run)


def panel(name, operation, record):
    """The commands of gnuplot for one operation."""
    axis, both = Axis(name), any(len(form["curves"]) > 1 for form in operation["forms"])
    lines = [line for line in record if line["operation"] == name and not line["part"]]
    data, series, tops = [], [], []
    for i, form in enumerate(operation["forms"]):
        line = next(line for line in lines if line["width"] == (str(form["width"]) if form["width"] else "") and
                    set(line["variants"].split()) & set(form["variants"]))
        title = ", ".join(form["variants"]) + (f", width {form['width']}" if form["width"] else "")
        colour, limit = COLOURS[i % len(COLOURS)], float(bound(line))
        data.append(f"$curve{i} << EOD\n{axis.points(form['curves'])}\nEOD")
        series += [f"$curve{i} with lines lw 1.4 lc rgb '{colour}' title '{title}'",
                   f"{limit:g} with lines dt 2 lc rgb '{colour}' notitle"]
        if line["at"]:
            worst = axis.position(abscissa(operation["over"], line["at"], name))
            series.append(f"'+' using ({worst:.2f}):({float(line['error']):g}) every ::::0 with points pt 7 ps 0.5 "
                          f"lc rgb '{colour}' notitle")
        tops.append(limit)
    scale = f"set logscale y; set yrange [{LEAST}:{max(tops) * 2:g}]" if max(tops) > 20 else \
        f"unset logscale y; set yrange [0:{max(tops) * 1.15:g}]"
    low = axis.mirrored(axis.span) if both else 0
    return "\n".join([*data, f'set title "{name}"', scale, f"set xrange [{low:.3f}:{axis.span:.3f}]",
                      f"set xtics ({axis.ticks(both)})", f"plot {', '.join(series)}"])


def picture(operations, record):
    rows = (len(operations) + 1) // 2
    panels = "\n".join(panel(name, of, record) for name, of in operations.items())
    drawn = common.gnuplot(f"""set terminal svg size 760,{230 * rows} font "sans-serif,11" background "white"
set multiplot layout {rows},2
set key below horizontal samplen 1
set lmargin 7; set rmargin 3; set tmargin 2
set samples 2
set grid
set xtics noenhanced scale 0
set ytics scale 0
{panels}
unset multiplot
""")
    return re.sub(r"(\d\.\d)\d(?=[, ])", r"\1", drawn)  # a tenth of a pixel is enough


def make(figures, path):
    """The files by name. Throws Contradiction where the figures are not what the record says."""
    record = list(csv.DictReader(path.open()))
    about, operations = figures["about"], figures["operations"]
    if not about["trial"]:
        check(figures, record)
    searched = [form["lanes"] for of in operations.values() if not of["all"] for form in of["forms"]]
    sweeps = [of["seconds"] for of in operations.values() if of["all"]]
    files = {}
    parts = [WORDS["introduction"].format(
        **about, sweeps=len(sweeps), hours=number(sum(sweeps) / 3600), searches=len(operations) - len(sweeps),
        lanes=f"{statistics.median(searched) / 1e6:.1f} million" if searched else "no").strip()]
    parts += ["## In short", short_table(record, figures), "## How it is measured", WORDS["method"].strip(),
              WORDS["columns"].strip()]
    for family in WORDS["family"]:
        parts.append(f"## {family['title']}")
        of_family = {name: of for name, of in operations.items() if of["family"] == family["name"]}
        for precision, words in PRECISIONS.items():
            of = {name: each for name, each in of_family.items() if single(name) == (precision == "float")}
            if of:
                file = f"accuracy-{family['name'].replace('_', '-')}-{precision}.svg"
                files[file] = picture(of, record)
                parts.append(f"![{family['title']} in {words}: errors in ulp]({file})")
            unmeasured = [name for name in family.get("operations", []) if single(name) == (precision == "float")]
            lines = sorted((line for line in record if line["operation"] in of or line["operation"] in unmeasured),
                           key=lambda line: line["operation"])
            if lines:
                parts.append(f"**{words.capitalize()}**\n\n{errors_table(lines, figures)}")
        if family["remarks"]:
            parts.append(family["remarks"].strip())
    parts += [WORDS["shares"].strip(), shares_table(path.with_name("shares.csv"), figures)]
    files["accuracy.md"] = "\n\n".join(parts) + "\n"
    return files
