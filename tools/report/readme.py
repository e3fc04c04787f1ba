"""Writes the README's figures, and their plot, from docs/performance.json, the kept headers and export list, and
tools/accuracy/errors.csv."""
import argparse
import csv
import re
import statistics
import textwrap

import common
import document
import performance

README = common.ROOT / "README.md"
ERRORS = common.ROOT / "tools/accuracy/errors.csv"
KEPT = common.ROOT / "kept"
PLOT = "opencl-kernels.svg"
VARIANTS = {
    "": "serves every argument",
    "_native": "less exact, and mostly faster; some forms do not serve every argument",
    "_half": "`_native`; but `logf` is more exact, and `sqrtf` serves every argument",
    "_rm": "`expf` without a table; else `_native` or the default",
}


def variant(name):
    return "".join(name.partition("_")[1:])


def bounds(forms):
    """What the headers state for each form: its greatest error in ulp at any width. Exact forms have none."""
    text = "".join(header.read_text() for header in sorted((KEPT / "include/lanemath").glob("*.h")))
    stated = {}
    declaration = r"/\*\*((?:(?!\*/).)*)\*/\s*(?:LANEMATH_INLINE )?\w+ lanemath_(\w+)\("
    for words, function in re.findall(declaration, text, re.S):
        match = re.search(r"[Ll]argest error (\S+) ulp", re.sub(r"\s*\*?\s+", " ", words))
        stated[function] = match and float(match[1])
    found = {}
    for name in forms:
        operation, _, suffix = name.partition("_")
        of = [stated[operation + width + (suffix and "_" + suffix)] for width in document.WIDTHS]
        if any(of):
            found[name] = max(filter(None, of))
    return found


def number(value):
    """As the headers have it."""
    return f"{value:.3g}".replace("e+0", "e").replace("e+", "e") if value >= 1e5 else f"{value:g}"


def half_and_all(values):
    return f"{number(statistics.median_high(values))} / {number(max(values))}" if values else ""


def by_estimates():
    """The forms that start from the processor's estimates."""
    with open(ERRORS) as file:
        return [(row["operation"], form) for row in csv.DictReader(file) if row["anywhere"]
                for form in row["variants"].split()]


def times(measurements, lanes):
    """The geometric mean, the number of functions, and how many of them are behind."""
    ratios = [m["ratio"] for m in measurements if (m["type"], m["group"]) == (lanes, "maths functions")]
    return document.number(document.mean(ratios)), len(ratios), sum(ratio < document.BEHIND for ratio in ratios)


def ratios(forms, comparison):
    """Of the default forms of functions."""
    found = [document.ratios(name, form).get(comparison) for name, form in forms.items()
             if "_" not in name and form["family"] not in document.EXACT]
    return [ratio for ratio, _ in filter(None, found)]


def beside(found):
    return (f"{document.number(document.mean(found))} times as fast, "
            f"{sum(ratio < document.BEHIND for ratio in found)} of {len(found)} functions behind")


def figures_block(figures, found, exported):
    forms = figures["forms"]
    measured = {lanes: times(figures["opencl"], lanes) for lanes in ("float", "double")}
    default = {name: bound for name, bound in found.items() if "_" not in name}
    by_type = [[bound for name, bound in default.items() if document.single(name) == of] for of in (True, False)]
    # A bound far beyond all others is set by a small part of the arguments.
    outliers = {name: bound for name, bound in default.items() if bound > 100}
    most = [number(max(bound for bound in of if bound <= 100)) for of in by_type]
    half = [number(statistics.median_high(of)) for of in by_type]
    exact = sum(name not in found for name in forms if "_" not in name)
    estimates = by_estimates()
    rows = [
        ("OpenCL kernels of scalars, beside the runtime's own built-ins",
         "; ".join(f"`{lanes}` {mean} times as fast, {behind} of {count} functions behind"
                   for lanes, (mean, count, behind) in measured.items())),
        ("one group of 128 bits, beside SLEEF", beside(ratios(forms, "group"))),
        *((f"one register of {document.LEVELS[level]} bits, the same bits",
           f"beside SLEEF {beside(ratios(of, 'register'))}; "
           f"{document.number(document.mean(ratios(of, 'gain')))} times as fast as 128 bits")
          for level, of in document.by_level(figures["levels"]).items()),
        ("errors of the default forms",
         f"half of them within {half[0]} ulp (`float`) and {half[1]} (`double`), all within {most[0]} and {most[1]}"
         + "".join(f" except `{name}` with {number(bound)}" for name, bound in outliers.items())
         + f"; {exact} operations are exact or rounded once"),
        ("the same bits",
         f"from every compiler, and on every make of processor but for {len(estimates)} of {len(forms)} forms, see "
         "[Limits](#limits)"),
        ("functions", f"{exported:,}: {len({name.split('_')[0] for name in forms})} operations in up to four variants, "
         "on 1, 2, 3, 4, 8 and 16 lanes"),
        ("imports", "nothing: no other library, not even C's; SSE4.1 is all that it needs"),
    ]
    return "\n".join(["| | |", "|---|---|", *(f"| {what} | {figure} |" for what, figure in rows)]) + f"""

Geometric means, measured on {figures["about"]["date"]} on one machine ({figures["about"]["processor"]});
*behind* is slower by more than 5 %. Each kernel `y[i] = f(x[i])` beside the runtime's own:

![How many times as fast as the runtime's own built-ins](docs/{PLOT})"""


def variants_block(figures, found):
    forms = figures["forms"]
    rows = []
    for suffix, words in VARIANTS.items():
        of = {name: bound for name, bound in found.items() if variant(name) == suffix}
        rows.append((f"`{suffix}`" if suffix else "default", words,
                     *(half_and_all([bound for name, bound in of.items() if document.single(name) == precision])
                       for precision in (True, False))))
    return "\n".join(["| variant | what it is | `float`, ulp: half / all within | `double` |", "|---|---|--:|--:|",
                      *(f"| {' | '.join(row)} |" for row in rows)])


def limits_block(figures):
    vectors = [lanes for lanes in dict.fromkeys(m["type"] for m in figures["opencl"]) if lanes[-1].isdigit()]
    wide = [f"`{lanes}` {mean} times as fast, {behind} of {count} functions behind"
            for lanes in vectors for mean, count, behind in [times(figures["opencl"], lanes)]]
    estimates = by_estimates()
    default = [f"`{operation}`" for operation, form in estimates if form == "default"]
    items = [
        "Kernels of vectors gain less than those of scalars: the runtime's own code for them is inlined, and takes FMA "
        f"instructions where the machine has them. {'; '.join(wide)}. "
        "[performance.md](docs/performance.md#in-opencl-kernels) has each function.",
        f"{len(estimates)} forms start from the processor's estimate of a reciprocal or a root, so their last bits "
        f"differ between makes of processors: {len(estimates) - len(default)} of the other variants, and the default "
        f"{', '.join(default)}."]
    return "\n".join(textwrap.fill(item, 120, initial_indent="- ", subsequent_indent="  ", break_on_hyphens=False,
                                   break_long_words=False) for item in items)


def drawn(measurements):
    ratios = {}
    for m in measurements:
        if m["group"] == "maths functions":
            ratios.setdefault(m["builtin"], {})[m["type"]] = m["ratio"]
    rows = "\n".join(f'"{name}" {of["float"]} {of["double"]}'
                     for name, of in sorted(ratios.items(), key=lambda item: -item[1]["float"]))
    return common.gnuplot(f"""set terminal svg size 480,{100 + 15 * len(ratios)} font "sans-serif,14" background "white"
$data << EOD
{rows}
EOD
set title "Times as fast as the runtime's own built-ins"
set logscale x 2
set xrange [0.2:64]
set xtics ("1/4" 0.25, "1/2" 0.5, 1, 2, 4, 8, 16, 32, 64) scale 0
set yrange [{len(ratios)}:-1]
set ytics noenhanced scale 0
set grid xtics ytics lw 1 lc rgb "#dddddd" lt 1, lw 1 lc rgb "#dddddd" lt 1
set border 0
set key bottom right opaque box lc rgb "#dddddd"
set arrow from 1, graph 0 to 1, graph 1 nohead lw 2 lc rgb "#7a7a7a" back
plot $data using 2:0:ytic(1) with points pt 7 ps 0.8 lc rgb "#1f5fa8" title "float", \\
     $data using 3:0 with points pt 7 ps 0.8 lc rgb "#e08a1e" title "double"
""")


def replaced(text, name, block):
    pattern = rf"(<!-- report: {name} -->\n).*?(<!-- end of report -->)"
    if len(re.findall(pattern, text, re.S)) != 1:
        common.fail(f"{README}: needs one place for the figures: {name}")
    return re.sub(pattern, lambda match: f"{match[1]}\n{block}\n\n{match[2]}", text, flags=re.S)


def main():
    parser = argparse.ArgumentParser(prog="scripts/report readme", description=__doc__)
    parser.add_argument("--check", action="store_true", help="fail if they are not what these files give")
    arguments = parser.parse_args()
    figures = performance.read(common.DOCS / "performance.json")
    exported = len(re.findall(r"^\s+__ocl_\w+;$", (KEPT / "exports.map").read_text(), re.M))
    found = bounds(figures["forms"])
    text = README.read_text()
    for name, block in {"figures": figures_block(figures, found, exported), "variants": variants_block(figures, found),
                        "limits": limits_block(figures)}.items():
        text = replaced(text, name, block)
    files = {README: text, common.DOCS / PLOT: drawn(figures["opencl"])}
    stale = [path.name for path, content in files.items() if not path.exists() or path.read_text() != content]
    if not arguments.check:
        for path, content in files.items():
            common.write(path, content)
    elif stale:
        common.fail(f"not what the reports give: {', '.join(stale)}; run scripts/report readme")


if __name__ == "__main__":
    try:
        main()
    except (OSError, LookupError, TypeError, ValueError, AttributeError, ArithmeticError) as error:
        common.fail(f"cannot make the README's figures: {error!r}")
