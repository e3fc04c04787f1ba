"""Measures the speed of every form and of its peers, and makes docs/performance.md and its plots from the figures."""
import argparse
import datetime
import hashlib
import json
import os
import pathlib
import platform
import re
import shutil
import statistics
import subprocess
import sys
import tempfile
import time

import common
import document
from common import DOCS, Journal, ROOT, fail, processor, progress, run, significant, text_of, write

BUILD = ROOT / "build/release"
BENCHMARK = BUILD / "bin/lanemath-benchmark"
OPENCL_BENCHMARK = BUILD / "bin/lanemath-opencl-benchmark"
LIBRARY = BUILD / "lib/__ocl_lanemath_h8.so.3.5"
WITHOUT_FMA = {"GLIBC_TUNABLES": "glibc.cpu.hwcaps=-AVX2,-FMA"}
# Arguments that only the long reductions serve.
LARGE = [(2e7, 1e9), (1e15, 1e30)]
LARGE_OPERATIONS = [name + f for name in ("sin", "cos", "sincos", "tan") for f in ("", "f")]
OPENCL_TYPES = ["float", "float4", "float8", "float16", "double", "double2", "double4", "double8"]


def build():
    """Whether there is the benchmark of OpenCL built-ins too."""
    run("cmake", "-S", ROOT, "--preset", "release", "--log-level=WARNING")
    targets = re.findall(r"^(lanemath-benchmark|lanemath-opencl-benchmark):",
                         run("cmake", "--build", BUILD, "--target", "help"), re.M)
    run("cmake", "--build", BUILD, "--target", *targets, "--", "--quiet")
    return "lanemath-opencl-benchmark" in targets


def find_tools():
    """Before any work: llvm-mca's path."""
    for tool, package in (("objdump", "binutils"), ("nm", "binutils"), ("gnuplot", "gnuplot-nox")):
        if not shutil.which(tool):
            fail(f"there is no {tool} (Debian package {package})")
    names = [f"llvm-mca-{version}" for version in range(30, 12, -1)] + ["llvm-mca"]
    found = next(filter(None, map(shutil.which, names)), None)
    return found or fail("there is no llvm-mca (Debian package llvm)")


def packages(*names):
    """The versions that Debian's packages have here."""
    found = {}
    for name in names:
        done = subprocess.run(["dpkg-query", "--show", "--showformat", "${db:Status-Status} ${Version}", name],
                              text=True, capture_output=True)
        status, _, version = done.stdout.partition(" ")
        if status == "installed":
            found[name] = version
    return found


def check_tunables(flags):
    """That the C library takes its other variants, by the place of expf in it."""
    script = ("import ctypes\n"
              "f = ctypes.cast(ctypes.CDLL('libm.so.6').expf, ctypes.c_void_p).value\n"
              "print(f - next(int(line.split('-')[0], 16) for line in open('/proc/self/maps') if '/libm.so' in line))")
    chosen = [run(sys.executable, "-c", script, env={**os.environ, **more}) for more in ({}, WITHOUT_FMA)]
    if "fma" in flags and chosen[0] == chosen[1]:
        fail(f"{WITHOUT_FMA} changes nothing: this C library spells it differently")


class Benchmark:
    def __init__(self, trial):
        self.flags = (["--benchmark_repetitions=2", "--benchmark_min_time=0.001"] if trial else
                      ["--benchmark_repetitions=5", "--benchmark_min_time=0.01"])
        self.samples = 200 if trial else 10000
        # The last core that this process may use: the first ones do the machine's own work.
        self.core = max(os.sched_getaffinity(0))

    def __call__(self, operation, *flags, env=None):
        """The least time of each benchmark, in nanoseconds a lane, and its error."""
        with tempfile.TemporaryDirectory() as folder:
            out = pathlib.Path(folder) / "out.json"
            run("taskset", "--cpu-list", self.core, BENCHMARK, operation, *self.flags, *flags,
                f"--benchmark_out={out}", env={**os.environ, **(env or {})})
            benchmarks = json.loads(out.read_text())["benchmarks"]
        best = {}
        for each in benchmarks:
            if each["run_type"] != "iteration":
                continue
            # The rest of the name is about the repetitions.
            name = "/".join(each["name"].split("/")[:2 if each["name"].split("/")[1] == "cycle" else 4])
            kept = best.setdefault(name, {"lane": float("inf")})
            kept["lane"] = min(kept["lane"], significant(each["seconds_per_lane"] * 1e9))
            if "ulp" in each:
                kept["ulp"] = significant(each["ulp"])
        return best

    def opencl(self, builtin):
        with tempfile.TemporaryDirectory() as folder:
            out = pathlib.Path(folder) / "out.json"
            run("taskset", "--cpu-list", self.core, OPENCL_BENCHMARK, builtin, "--type", ",".join(OPENCL_TYPES),
                "--json", out, stderr=subprocess.DEVNULL)
            return json.loads(out.read_text())["measurements"]


def form_of(name, family, all_measured, ours="lanemath"):
    """The figures of one form, put together from its benchmarks: of the library, or of a companion."""
    form = {"family": family, "lane": {}, "peers": {}}
    # They were measured in random order: short keys first, so that widths are in theirs.
    for key, figures in sorted(all_measured.items(), key=lambda item: (len(item[0]), item[0])):
        title, *rest = key.split("/")
        if title != name:
            continue
        if rest[0] == "cycle":
            form["cycle"] = figures["lane"]
            continue
        by, kind, width = rest
        if by != ours:
            if by == "lanemath":
                form["group"] = figures["lane"]
            elif kind == "throughput":
                library = "SLEEF" if by.startswith("Sleef_") else by if by in document.INLINED else "C library"
                form["peers"][library] = {"function": by, "width": int(width), **figures}
        elif kind == "throughput":
            form["lane"][width] = figures["lane"]
            if "ulp" in figures:
                form["ulp"] = figures["ulp"]
        else:
            form[kind] = figures["lane"]
    return form


def bounds(tool, names, symbol_of):
    """The reciprocal throughput that llvm-mca gives for the common path of these functions, in cycles."""
    code, at = {}, {}
    for line in run("objdump", "-d", "--no-show-raw-insn", LIBRARY).splitlines():
        match = re.match(r" *([0-9a-f]+):\t(.+)", line)
        if match:
            code[int(match[1], 16)] = match[2]
    for line in run("nm", "-D", "--defined-only", LIBRARY).splitlines():
        place, _, symbol = line.split()
        at[symbol.split("@")[0]] = int(place, 16)
    following = dict(zip(sorted(code), sorted(code)[1:]))
    regions = []
    for name in names:
        path = common_path(code, following, at[symbol_of(name)])
        if path:
            regions += [f"# LLVM-MCA-BEGIN {name}", *path, "# LLVM-MCA-END"]
    out = run(tool, "-mcpu=native", "--summary-view", "--resource-pressure=0", "--instruction-info=0", "-",
              input="\n".join(regions) + "\n", stderr=subprocess.DEVNULL)
    found = re.findall(r"^\[\d+\] Code Region - (\S+)\n.*?^Block RThroughput: ([\d.]+)", out, re.M | re.S)
    about = run(tool, "--version")
    version, host = (re.search(text + r"(\S+)", about)[1] for text in ("version ", "Host CPU: "))
    return f"llvm-mca {version} for {host}", {name: float(cycles) for name, cycles in found}


def common_path(code, following, place):
    """A function's instructions to its first return where no conditional jump is taken; none if that calls or loops."""
    path, seen = [], set()
    while place in code and place not in seen:
        seen.add(place)
        text = re.sub(r"\s*(#|<).*", "", code[place])
        mnemonic = text.split()[0]
        if mnemonic.startswith("call"):
            return None
        if mnemonic == "jmp":
            target = re.fullmatch(r"jmp\s+([0-9a-f]+)", text)
            if not target:
                return None
            place = int(target[1], 16)
            continue
        if mnemonic.startswith("j"):
            if int(text.split()[1], 16) <= place:
                return None
            text = f"{mnemonic} .Lrare"
        path.append(text)
        if mnemonic == "ret":
            return path
        place = following.get(place)
    return None


def families_of_forms(*of):
    done = subprocess.run([BENCHMARK, "--list", *of], text=True, capture_output=True)
    if "this processor lacks" in done.stderr:
        return {}
    if done.returncode != 0:
        fail(done.stderr.strip().partition(": ")[2])
    return dict(reversed(line.split("\t")) for line in done.stdout.splitlines())


def lesser(one, other):
    """The lesser of any two times, at every depth, with all else as it is in the later one."""
    if isinstance(one, dict):
        return {key: lesser(one[key], other.get(key, one[key])) for key in one}
    return min(one, other) if isinstance(one, float) and isinstance(other, float) else other


def hash_of(*paths):
    return hashlib.sha256(b"".join(path.read_bytes() for path in paths)).hexdigest()


def measure(arguments):
    before = read(arguments.kept) if arguments.again or arguments.levels else None
    llvm_mca = find_tools()
    description, flags = processor()
    check_tunables(flags)
    with_opencl = build()
    trial = bool(arguments.trial)
    benchmark = Benchmark(trial)
    family_of = families_of_forms(*arguments.operations)
    # What the companions have, of each level that this processor has.
    at_levels = {level: [name for name in families_of_forms("--level", level) if name in family_of]
                 for level in document.LEVELS}
    operations = list(dict.fromkeys(name.split("_")[0] for name in family_of))
    large_operations = [name for name in LARGE_OPERATIONS if name in operations]
    builtins = [name for name, operation in document.BUILTINS.items()
                if with_opencl and operation in operations and not before]
    kind = "trial" if trial else "levels" if arguments.levels else "again" if before else "performance"
    journal = Journal(BUILD / "report" / kind, {
        "library": hash_of(LIBRARY, *sorted(LIBRARY.parent.glob("liblanemath_*.so.3"))),
        "benchmark": hash_of(BENCHMARK),
        "processor": description, "operations": operations, "flags": benchmark.flags}, arguments.fresh)

    pieces = {}
    for name in operations if not arguments.levels else []:
        pieces[name] = lambda n=name: benchmark(n, f"--errors={benchmark.samples}")
        # By the name of the default form alone: the other variants have the same peer.
        pieces[f"{name}-without-fma"] = lambda n=name: benchmark(f"{n}1", "--c-library-alone", env=WITHOUT_FMA)
    for level, of in at_levels.items():
        for name in dict.fromkeys(name.split("_")[0] for name in of):
            pieces[f"{name}-{level}"] = lambda n=name, l=level: benchmark(n, "--level", l,
                                                                          f"--errors={benchmark.samples}")
    for low, high in LARGE if not arguments.levels else []:
        for name in large_operations:
            pieces[f"{name}-{low:.0e}"] = lambda n=name, l=low, h=high: benchmark(n, "--between", l, h)
    for name in builtins:
        pieces[f"opencl-{name}"] = lambda n=name: benchmark.opencl(n)
    began, found, loads = time.time(), {}, []
    for i, (name, measure_piece) in enumerate(pieces.items()):
        progress(i + 1, len(pieces), name, began)
        piece = journal.piece(name, measure_piece)
        found[name] = piece["measured"]
        loads.append(piece["load"])
    if sys.stderr.isatty():
        print(file=sys.stderr)

    levels = {f"{level} {name}": form_of(name, family_of[name], found[f"{name.split('_')[0]}-{level}"],
                                         f"lanemath_{level}")
              for level, of in at_levels.items() for name in of}
    if arguments.levels:
        before["about"]["levels"] = datetime.datetime.now(datetime.timezone.utc).strftime("%Y-%m-%d")
        write(arguments.kept, text_of(before | {"levels": levels}))
        journal.end()
        return
    forms = {name: form_of(name, family, found[name.split("_")[0]]) for name, family in family_of.items()}
    for name, form in forms.items():
        operation = name.split("_")[0]
        for key, figures in found[f"{operation}-without-fma"].items():
            if key.split("/")[1] != "cycle" and key.split("/")[2] == "throughput":
                form["peers"]["C library"]["lane without FMA"] = figures["lane"]
    floating = [name for name, family in family_of.items() if family not in document.EXACT[1:]]
    bounds_by, cycles = bounds(llvm_mca, floating, lambda name: "__ocl_lanemath_h8_" + re.sub(
        r"(_|$)", document.group_width(name) + r"\1", name, count=1))
    for name, bound in cycles.items():
        forms[name]["bound"] = bound
    compiler = re.search(r"^CMAKE_CXX_COMPILER:\w+=(.*)$", (BUILD / "CMakeCache.txt").read_text(), re.M)[1]
    figures = {
        "about": {
            "date": datetime.datetime.now(datetime.timezone.utc).strftime("%Y-%m-%d"),
            "processor": description,
            "cores": os.cpu_count(),
            "system": platform.freedesktop_os_release()["PRETTY_NAME"],
            "compiler": run(compiler, "--version").splitlines()[0],
            "clock": significant(1 / statistics.median(form["cycle"] for form in forms.values())),
            "load": {"median": significant(statistics.median(loads)), "largest": significant(max(loads))},
            "repetitions": int(benchmark.flags[0].partition("=")[2]),
            "samples": benchmark.samples,
            "bounds": bounds_by,
            "packages": packages("libsleef3", "libc6", "libhwy-dev", "libxsimd-dev", "libeigen3-dev",
                                 "pocl-opencl-icd"),
        },
        "forms": forms,
        "levels": levels,
        "large": {f"{name} {low:.0e}": form_of(name, forms[name]["family"], found[f"{operation}-{low:.0e}"])
                  for low, _ in LARGE for operation in large_operations
                  for name in forms if name.split("_")[0] == operation},
        "opencl": [measurement for name in builtins for measurement in found[f"opencl-{name}"]],
    }
    if before:
        about = before["about"]
        about["again"] = sorted({*about.get("again", []), *operations})
        merged = {part: before[part] | {key: lesser(before[part].get(key, of), of)
                                        for key, of in figures[part].items()}
                  for part in ("forms", "levels", "large")}
        figures = before | merged
    write(arguments.kept, text_of(figures))
    journal.end()


def read(path):
    return common.read(path, ["about", "forms", "levels", "large", "opencl"])


def main():
    parser = argparse.ArgumentParser(prog="scripts/report performance", description=__doc__)
    what = parser.add_mutually_exclusive_group()
    what.add_argument("--render", action="store_true", help="make document and plots from the kept figures alone")
    what.add_argument("--check", action="store_true", help="fail if they are not what the kept figures give")
    what.add_argument("--fresh", action="store_true", help="do not continue a run that was interrupted")
    parser.add_argument("--trial", metavar="FOLDER", type=pathlib.Path,
                        help="a quick run, in this folder instead of docs; reasons may be missing")
    what.add_argument("--again", action="store_true",
                      help="measure some operations once more, because something disturbed them, and keep the lesser "
                      "of all times, the peers' too")
    what.add_argument("--levels", action="store_true",
                      help="measure the companions for wider registers alone, and keep all other figures")
    parser.add_argument("operations", nargs="*", metavar="OPERATION", help="with --trial or --again: these alone")
    arguments = parser.parse_args()
    if arguments.operations and not (arguments.trial or arguments.again):
        parser.error("only a trial measures some operations alone")
    if arguments.again and not arguments.operations:
        parser.error("--again needs operations")
    if arguments.levels and arguments.trial:
        parser.error("a trial measures everything")
    folder = arguments.trial or DOCS
    kept = arguments.kept = folder / "performance.json"
    if not folder.is_dir():
        fail(f"there is no folder {folder}")
    if arguments.render or arguments.check:
        figures = read(kept)
    else:
        measure(arguments)
        figures = read(kept)
    try:
        files = document.make(figures, strict=not arguments.trial)
    except document.Unexplained as error:
        fail(f"the figures are kept, but tools/report/performance.toml lacks reasons: {error}; then --render")
    except (KeyError, TypeError, ValueError, AttributeError, ArithmeticError) as error:
        fail(f"the figures are incomplete: {kept}: {error!r}")
    common.publish(folder, "performance", files, arguments.check)
    if arguments.check:
        return
    if not arguments.render:
        print(folder / "performance.md", file=sys.stderr)


if __name__ == "__main__":
    try:
        main()
    except KeyboardInterrupt:
        fail("interrupted; the next run continues")
