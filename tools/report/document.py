"""Makes docs/performance.md and its plots from the figures of docs/performance.json."""
import fnmatch
import math
import pathlib
import re
import tomllib

import common

WORDS = tomllib.loads((pathlib.Path(__file__).parent / "performance.toml").read_text())
# Other libraries' functions that are inlined into the caller's loop, and loops of plain C++.
INLINED = ["Highway", "xsimd", "Eigen", "plain C++"]
EXACT = ["Rounding, selection, decomposition, remainders, fused multiply-add", "Conversions", "Integer division"]
WIDTHS = ["1", "2", "3", "4", "8", "16"]
BEHIND = 1 / 1.05
# What is compared.
COMPARISONS = {
    "call": "one call at width 1, beside the C library's function",
    "group": "one group of 128 bits, beside SLEEF's function of 128 bits",
    "array": "an array at width 16, beside the fastest of the inlined libraries or of plain C++",
}
# The companions' levels, the bits of their registers, and what is compared at each.
LEVELS = {"avx2": 256, "avx512": 512}
LEVEL_COMPARISONS = {
    "gain": "one register, beside one group of the library's 128 bits",
    "register": "one register, beside SLEEF's function of it",
    "inlined": "an array, beside the fastest of the inlined libraries or of plain C++ at this level",
}
# Built-ins of OpenCL, and the operations that they are.
BUILTINS = {name: name for name in (
    "exp exp2 exp10 expm1 log log2 log10 log1p pow powr pown rootn sin cos sincos tan sinpi cospi tanpi asin acos "
    "asinpi acospi atan atanpi atan2 atan2pi sinh cosh tanh asinh acosh atanh sqrt rsqrt cbrt hypot erf erfc lgamma "
    "tgamma").split()}
BUILTINS.update({f"native_{name}": name + "f" for name in (
    "exp exp2 exp10 log log2 log10 powr sin cos tan sqrt rsqrt").split()})


class Unexplained(Exception):
    pass


def number(value):
    """As a person would write it: three digits, and no more than two behind the point."""
    if value is None:
        return ""
    value = float(value)
    if value == math.inf:
        return "inf"
    if value >= 1e5:
        return f"{value:.0e}".replace("e+0", "e").replace("e+", "e")
    return f"{value:.{2 if value < 10 else 1 if value < 100 else 0}f}"


def mean(values):
    """The geometric mean, if there are values."""
    return math.exp(sum(map(math.log, values)) / len(values)) if values else None


def table(heading, rows):
    """The first column is text, the others are numbers."""
    lines = [f"| {' | '.join(heading)} |", "|---" + "|--:" * (len(heading) - 1) + "|"]
    return "\n".join(lines + [f"| {' | '.join(row)} |" for row in rows])


def single(name):
    """Whether an operation on floating lanes is in single precision, by the form's name."""
    operation = name.split("_")[0]
    return operation.endswith("f") and operation not in ("erf", "modf")


def group_width(name):
    return "4" if single(name) else "2"


def widest(form):
    """A lane of the widest call. Of a companion only what one register holds is called."""
    return form["lane"][max(form["lane"], key=int)]


def array_time(form):
    return min(widest(form), form.get("array", math.inf))


def ratios(name, form):
    """For each comparison that there is: how many times the peer's time is ours, and the peer."""
    peers = form["peers"]
    found = {}
    at_level = "1" not in form["lane"]
    if "C library" in peers:
        found["call"] = peers["C library"]["lane"] / form["lane"]["1"], "C library"
    if at_level:
        found["gain"] = form["group"] / widest(form), "lanemath"
    if "SLEEF" in peers:
        ours = widest(form) if at_level else form["lane"][group_width(name)]
        found["register" if at_level else "group"] = peers["SLEEF"]["lane"] / ours, "SLEEF"
    inlined = [(peers[each]["lane"] / array_time(form), each) for each in INLINED if each in peers]
    if inlined:
        found["inlined" if at_level else "array"] = min(inlined)
    return found


def without_fma(form):
    time = form["peers"].get("C library", {}).get("lane without FMA")
    return time and time / form["lane"]["1"]


def reason(comparison, name, form):
    for each in WORDS["reason"]:
        if each.get("without_fma") and (without_fma(form) or 0) < BEHIND:
            continue
        patterns = each["forms"].split() if comparison in each["comparison"].split() else []
        if any(fnmatch.fnmatchcase(name, of) for of in patterns):
            return " ".join(each["text"].split())
    return None


def by_level(figures):
    levels = {}
    for key, form in figures.items():
        level, name = key.split()
        levels.setdefault(level, {})[name] = form
    return levels


def families(forms):
    return list(dict.fromkeys(form["family"] for form in forms.values()))


def of_family(forms, family):
    return {name: form for name, form in sorted(forms.items()) if form["family"] == family}


def summary_rows(forms, comparisons):
    rows = []
    for key, text in comparisons.items():
        found = {name: ratios(name, form)[key][0] for name, form in forms.items() if key in ratios(name, form)}
        kinds = {"functions": [], "their other variants": [], "exact operations": []}
        for name, ratio in found.items():
            exact = forms[name]["family"] in EXACT
            kinds["exact operations" if exact else "their other variants" if "_" in name else "functions"].append(ratio)
        for kind, of in kinds.items():
            if of:
                rows.append([f"{text}: {kind}", str(len(of)), number(mean(of)), str(sum(r < BEHIND for r in of))])
    return rows


def summary(forms, levels):
    rows = summary_rows(forms, COMPARISONS)
    plain = [r for r in map(without_fma, forms.values()) if r]
    if plain:
        rows.append(["the same call beside the C library without FMA", str(len(plain)), number(mean(plain)),
                     str(sum(r < BEHIND for r in plain))])
    for level, of in levels.items():
        rows += summary_rows(of, {key: f"{LEVELS[level]} bits: {text}" for key, text in LEVEL_COMPARISONS.items()})
    return table(["Comparison", "forms", "times", "behind"], rows)


def summary_of_families(forms, comparisons=COMPARISONS):
    rows = []
    for family in families(forms):
        of = [ratios(name, form) for name, form in of_family(forms, family).items()]
        rows.append([family] + [number(mean([r[key][0] for r in of if key in r])) for key in comparisons])
    return table(["Family", *comparisons], rows)


def times_table(forms):
    heading = ["Form", *WIDTHS] + (["array"] if any("array" in form for form in forms.values()) else [])
    return table(heading, [[f"`{name}`", *(number(form["lane"].get(w)) for w in WIDTHS)] +
                           ([number(form.get("array"))] if "array" in heading else []) for name, form in forms.items()])


def ratio_table(forms):
    rows = []
    for name, form in forms.items():
        found = ratios(name, form)
        bound = form.get("bound")
        share = bound and bound * form["cycle"] / (form["lane"][group_width(name)] * int(group_width(name)))
        peer = found.get("array", (None, ""))
        call, group = (found.get(key, (None,))[0] for key in ("call", "group"))
        cells = [number(call), number(without_fma(form)), number(group),
                 f"{number(peer[0])} {peer[1]}".strip(), f"{100 * share:.0f} %" if share else ""]
        rows.append([f"`{name}`", *cells])
    heading = ["Form", "C", "no FMA", "SLEEF", "inlined", "bound"]
    kept = [i for i in range(len(heading)) if i == 0 or any(row[i] for row in rows)]
    rows = [row for row in rows if any(row[1:])]
    return table([heading[i] for i in kept], [[row[i] for i in kept] for row in rows]) if rows else ""


def error_table(forms):
    columns = ["C library", "SLEEF", *INLINED[:3]]
    rows = [[f"`{name}`", number(form["ulp"])] + [number(form["peers"].get(each, {}).get("ulp")) for each in columns]
            for name, form in forms.items()
            if form.get("ulp") and any(form["peers"].get(each, {}).get("ulp") is not None for each in columns)]
    heading = ["Form", "ours", "C", "SLEEF", *INLINED[:3]]
    kept = [i for i in range(len(heading)) if i < 2 or any(row[i] for row in rows)]
    return table([heading[i] for i in kept], [[row[i] for i in kept] for row in rows]) if rows else ""


def latency_table(forms):
    if not any("latency" in form for form in forms.values()):
        return ""
    rows = [[f"`{name}`", number(form.get("latency")), number(form["rare"]), number(form["lane"]["4"]),
             number(max(form["lane"][w] * min(int(w), 4) for w in WIDTHS) / (4 * form["lane"]["4"]))]
            for name, form in forms.items()]
    return table(["Form", "latency", "rare", "typical", "gap"], rows)


def level_table(level, forms, levels):
    """Nanoseconds a lane of ours and of the peers, and their ratios."""
    def bits(form, width, of):
        return form["lane"].get(str(int(max(form["lane"], key=int)) * width // of))

    half = LEVELS[level] // 2
    rows = []
    for name, form in forms.items():
        found = ratios(name, form)
        narrower = levels.get("avx2", {}).get(name) if half > 128 else None
        cells = [form["group"], narrower and widest(narrower), bits(form, half, LEVELS[level]) if half > 128 else None,
                 widest(form), found["gain"][0], form.get("array"),
                 *(form["peers"].get(each, {}).get("lane") for each in ("SLEEF", *INLINED)),
                 *(found.get(key, (None,))[0] for key in ("register", "inlined"))]
        rows.append([f"`{name}`", *map(number, cells)])
    heading = ["Form", "128", f"{half} at AVX2", str(half), str(LEVELS[level]), "gain", "array", "SLEEF", *INLINED,
               "register", "inlined"]
    kept = [i for i in range(len(heading)) if i == 0 or any(row[i] for row in rows)]
    return table([heading[i] for i in kept], [[row[i] for i in kept] for row in rows])


def level_section(level, levels, strict):
    """Text, and plots by name."""
    forms = levels[level]
    parts = [f"## Registers of {LEVELS[level]} bits", WORDS["levels"]["text"].format(bits=LEVELS[level]).strip(),
             summary_of_families(forms, LEVEL_COMPARISONS)]
    files = {}
    for precision in ("float", "double"):
        file = f"performance-{level}-{precision}.svg"
        of = {name: form for name, form in forms.items()
              if single(name) == (precision == "float") and form["family"] not in EXACT[1:]}
        titles = {"gain": "128 bits", "register": "SLEEF", "inlined": "fastest inlined"}
        if of:
            files[file] = overview_plot(
                of, titles, f"{precision}, {LEVELS[level]} bits: times as fast as the peer, geometric means")
            parts.append(f"![{LEVELS[level]} bits, {precision}: ratios by family]({file})")
    parts.append(behind_table(forms, strict, LEVEL_COMPARISONS))
    for family in families(forms):
        of = of_family(forms, family)
        parts.append(f"### {family}, {LEVELS[level]} bits\n\n{level_table(level, of, levels)}")
        errors = error_table(of)
        if errors:
            parts.append(f"**Largest error found, ulp**\n\n{errors}")
    return list(filter(None, parts)), files


def behind_table(forms, strict, comparisons=COMPARISONS):
    """A row for each reason, with the forms that it is of."""
    parts, unexplained = [], []
    for key, text in comparisons.items():
        by_reason = {}
        for name, form in forms.items():
            ratio, by = ratios(name, form).get(key, (math.inf, ""))
            if ratio < BEHIND:
                why = reason(key, name, form)
                if not why:
                    unexplained.append(f"{key} {name} ({number(ratio)})")
                more = [by] if key in ("array", "inlined") and by != "plain C++" else []
                errors = [each.get("ulp") for each in (form, form["peers"].get(by, {}))]
                if all(errors):
                    more.append(f"{number(errors[0])}, {number(errors[1])} ulp")
                text_of_form = f"`{name}` {number(ratio)}" + (f" ({': '.join(more)})" if more else "")
                by_reason.setdefault(why or "**no reason is known**", []).append((ratio, text_of_form))
        if by_reason:
            rows = sorted(([why, ", ".join(each for _, each in sorted(of))] for why, of in by_reason.items()),
                          key=lambda row: min(by_reason[row[0]])[0])
            parts.append(f"### {text[0].upper()}{text[1:]}\n\n" + "\n".join(
                ["| Reason | Forms |", "|---|---|"] + [f"| {why} | {of} |" for why, of in rows]))
    if strict and unexplained:
        raise Unexplained(", ".join(unexplained))
    return "\n\n".join(parts)


def large_table(large):
    ranges = list(dict.fromkeys(key.split()[1] for key in large))
    rows = []
    for name in dict.fromkeys(key.split()[0] for key in large):
        row = [f"`{name}`"]
        for each in ranges:
            form = large[f"{name} {each}"]
            found = ratios(name, form)
            row += [number(form["lane"][group_width(name)]), number(found.get("group", (None,))[0]),
                    number(found.get("call", (None,))[0])]
        rows.append(row)
    return table(["Form"] + [cell for each in ranges for cell in (f"lane, {WORDS['large'][each]}", "SLEEF", "C")], rows)


def opencl_table(measurements, figure):
    """A figure of each built-in for each type; of ratios their means too."""
    types = list(dict.fromkeys(m["type"] for m in measurements))
    found = {(m["builtin"], m["type"]): number(m[figure]) for m in measurements}
    rows = sorted([f"`{name}`"] + [found.get((name, each), "") for each in types]
                  for name in dict.fromkeys(m["builtin"] for m in measurements))
    means = []
    if figure == "ratio":
        for group in dict.fromkeys(m["group"] for m in measurements):
            of = [mean([m["ratio"] for m in measurements if (m["type"], m["group"]) == (each, group)])
                  for each in types]
            means.append([f"*{group}, geometric mean*", *map(number, of)])
    return table(["Built-in", *types], means + rows)


def plot(title, names, columns, label, scale):
    """Bars, side by side for each name: columns maps a title to a list of values, None where there is none."""
    data = "\n".join(" ".join([f'"{name}"'] + [str(values[i] or "NaN") for values in columns.values()])
                     for i, name in enumerate(names))
    colours = ["#1f5fa8", "#e08a1e", "#7a7a7a", "#4f9d4f", "#b04a6a"]
    series = ", ".join(f"$data using {i + 2}:xtic(1) lc rgb '{colours[i]}' title '{each}'"
                       for i, each in enumerate(columns))
    width = max(640, 100 + 9 * len(names) * (len(columns) + 1))
    return common.gnuplot(f"""set terminal svg size {width},420 font "sans-serif,13" background "white"
$data << EOD
{data}
EOD
set title "{title}"
set ylabel "{label}"
set style data histogram
set style histogram clustered gap 1
set style fill solid noborder
{scale}
set grid ytics
set key outside below samplen 1
set xtics rotate by -35 noenhanced scale 0
plot {series}
""")


def family_plot(title, forms):
    """The default forms that have a library's function for a peer: our times and theirs. None if there are none, or
    more than a plot can show."""
    shown = {name: form for name, form in forms.items()
             if "_" not in name and {"SLEEF", "C library"} & set(form["peers"])}
    if not 0 < len(shown) <= 40:
        return None
    inlined = lambda form: min((form["peers"][p]["lane"] for p in INLINED if p in form["peers"]), default=None)
    of = lambda peer: [form["peers"].get(peer, {}).get("lane") for form in shown.values()]
    columns = {"lanemath, one group": [form["lane"][group_width(name)] for name, form in shown.items()],
               "SLEEF, one group": of("SLEEF"), "C library": of("C library"),
               "lanemath, array": [array_time(form) for form in shown.values()],
               "fastest inlined": [inlined(form) for form in shown.values()]}
    columns = {title: values for title, values in columns.items() if any(values)}
    return plot(title, list(shown), columns, "nanoseconds a lane", "set logscale y; set yrange [0.05:*]")


def overview_plot(forms, titles, title):
    """Ratios by family of the default forms: titles maps comparisons to their names."""
    rows = {}
    for family in families(forms):
        of = [ratios(name, form) for name, form in of_family(forms, family).items() if "_" not in name]
        rows[family] = {key: mean([r[key][0] for r in of if key in r]) for key in titles}
    rows = {family: row for family, row in rows.items() if any(row.values())}
    return plot(title, [re.split(",| functions| and", family)[0] for family in rows],
                {title: [row[key] for row in rows.values()] for key, title in titles.items()}, "times as fast",
                "set yrange [0:*]; set arrow from graph 0, first 1 to graph 1, first 1 nohead dt 2")


def make(figures, strict):
    """The files by name. Throws Unexplained if a form is behind its peer for no known reason."""
    about, forms = figures["about"], figures["forms"]
    found = about["packages"]
    levels = by_level(figures["levels"])
    files = {"performance-overview.svg": overview_plot(
        forms, {"call": "call: C library", "group": "group: SLEEF", "array": "array: inlined"},
        "Times as fast as the peer: geometric means of the default forms")}
    parts = [WORDS["introduction"].format(
        **about, others=", ".join(f"{name} {version}" for name, version in found.items()),
        load_median=number(about["load"]["median"]), load_largest=number(about["load"]["largest"])).strip()]
    if "again" in about:
        parts[0] += "\n- measured again, the lesser times kept: " + ", ".join(f"`{name}`" for name in about["again"])
    if "levels" in about:
        parts[0] += f"\n- registers of more than 128 bits: by a run of their own, {about['levels']}"
    missing = [text for package, text in WORDS["missing"].items() if package not in found]
    if missing:
        parts.append("Not installed on that machine, and so not compared: " + ", ".join(missing) + ".")
    lacking = [str(bits) for level, bits in LEVELS.items() if level not in levels]
    if lacking:
        parts.append(f"That processor has no registers of {' or '.join(lacking)} bits, so they are not measured.")
    parts += ["## In short", WORDS["short"].strip(), summary(forms, levels), summary_of_families(forms),
              "![Ratios by family](performance-overview.svg)", WORDS["columns"].strip()]
    behind = behind_table(forms, strict)
    parts += ["## Behind a peer, and why", WORDS["behind"].strip(), behind or "None is."]
    parts += ["## What the peers promise", WORDS["promises"].strip(),
              "\n".join(["| Library | Error and domain |", "|---|---|"] +
                        [f"| {each['library']} | {' '.join(each['text'].split())} |" for each in WORDS["peer"]])]
    for family in families(forms):
        of = of_family(forms, family)
        parts.append(f"## {family}")
        for precision, of_precision in (("float", {n: f for n, f in of.items() if single(n)}),
                                        ("double", {n: f for n, f in of.items() if not single(n)})):
            title = f"{family.split(',')[0]}, {precision}"
            picture = family_plot(title, of_precision)
            if picture:
                file = f"performance-{title.split()[0].rstrip(',').lower()}-{precision}.svg"
                files[file] = picture
                parts.append(f"![{title}: nanoseconds a lane]({file})")
        if family in WORDS["remarks"]:
            parts.append(WORDS["remarks"][family].strip())
        for title, made in (("Nanoseconds a lane", times_table(of)), ("Times as fast as the peer", ratio_table(of)),
                            ("Largest error found, ulp", error_table(of)),
                            ("Waiting and rare lanes", latency_table(of))):
            if made:
                parts.append(f"**{title}**\n\n{made}")
        if any(key.split()[0] in of for key in figures["large"]):
            parts += ["### Large arguments", WORDS["large"]["text"].strip(),
                      large_table({k: v for k, v in figures["large"].items() if k.split()[0] in of})]
    for level in levels:
        more, plots = level_section(level, levels, strict)
        parts += more
        files |= plots
    if figures["opencl"]:
        parts += ["## In OpenCL kernels", WORDS["opencl"]["text"].strip(),
                  f"**Times as fast as the runtime's own**\n\n{opencl_table(figures['opencl'], 'ratio')}",
                  f"**Nanoseconds a lane**\n\n{opencl_table(figures['opencl'], 'lanemath')}"]
    files["performance.md"] = "\n\n".join(parts) + "\n"
    return files
