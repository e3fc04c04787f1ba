"""Measures the error of every form, keeps the figures, and makes docs/accuracy.md and its plots from them."""
import argparse
import datetime
import hashlib
import json
import os
import pathlib
import platform
import statistics
import sys
import time

import accuracy_document
import common
from common import DOCS, Journal, ROOT, fail, processor, progress, run, significant, text_of, write

BUILD = ROOT / "build/release"
TOOL = BUILD / "bin/lanemath-errors"
LIBRARY = BUILD / "lib/__ocl_lanemath_h8.so.3.5"
RECORD = ROOT / "tools/accuracy/errors.csv"
# In how many portions the floats of an operation are measured, and how often a search is repeated with other lanes.
SWEEPS, SEARCHES, LANES = 8, 1, 50_000


def combined(portions):
    """What all portions found of one form or of a part of its arguments."""
    found = [each for each in portions if each]
    if not found:
        return None
    worst = min(found, key=lambda each: (-float(each["error"]), each["at"]))
    return {"error": worst["error"], "at": worst["at"], "lanes": sum(each["lanes"] for each in found),
            "rounded": sum(each["rounded"] for each in found)}


def curves_of(portions, axis, of_magnitude):
    """The largest errors in the columns of a plot, for positive arguments and for negative ones."""
    largest = {}
    for portion in portions:
        for cell, error in portion["curve"]:
            cell = cell & 0x3FFF if of_magnitude else cell
            for column in axis.columns(cell & 0x3FFF):
                key = cell >> 14, column
                largest[key] = max(largest.get(key, 0), error)
    curves = [[float(f"{largest[key]:.3g}") if (key := (sign, column)) in largest else None
               for column in range(axis.COLUMNS)] for sign in (0, 1)]
    return curves if any(curves[1]) else curves[:1]


def figures_of(operation, portions):
    """The figures of one operation, put together from its portions."""
    of_magnitude = operation["symmetric"] or operation["over"] != "argument"
    axis, forms = accuracy_document.Axis(operation["operation"]), []
    for same in zip(*(portion["forms"] for portion in portions)):
        form = {"variants": same[0]["variants"], "width": same[0]["width"], **combined(same)}
        form["parts"] = {part: found for part in same[0]["parts"] or {}
                         if (found := combined([each["parts"][part] for each in same]))}
        form["curves"] = curves_of(same, axis, of_magnitude)
        forms.append(form)
    return {"family": operation["family"], "all": operation["sweeps"], "over": operation["over"],
            "seconds": significant(sum(portion["seconds"] for portion in portions)), "forms": forms}


def build():
    run("cmake", "-S", ROOT, "--preset", "release", "--log-level=WARNING")
    run("cmake", "--build", BUILD, "--target", "lanemath-errors", "--", "--quiet")


def measure(arguments):
    build()
    trial = bool(arguments.trial)
    operations = json.loads(run(TOOL, "list"))
    unknown = set(arguments.operations) - {each["operation"] for each in operations}
    if unknown:
        fail(f"no errors to be measured of {', '.join(sorted(unknown))}")
    operations = [each for each in operations if not arguments.operations or each["operation"] in arguments.operations]
    description, _ = processor()
    # A sweep of a trial is the first of many portions.
    sweeps, searches, lanes = (256, 1, 2000) if trial else (SWEEPS, SEARCHES, LANES)
    journal = Journal(BUILD / "report" / ("accuracy-trial" if trial else "accuracy"), {
        "library": hashlib.sha256(LIBRARY.read_bytes()).hexdigest(), "processor": description,
        "operations": operations, "portions": [sweeps, searches, lanes]}, arguments.fresh)

    def portion(name, number, of):
        before = os.times()
        forms = json.loads(run(TOOL, "measure", name, "--portion", number, "--of", of, "--lanes", lanes, "--threads",
                               arguments.threads))
        after = os.times()
        seconds = sum(after[2:4]) - sum(before[2:4])
        return {"seconds": seconds, "forms": forms}

    pieces = [(each["operation"], number, sweeps) for each in operations if each["sweeps"]
              for number in range(1 if trial else sweeps)]
    pieces += [(each["operation"], number, searches) for number in range(searches)
               for each in operations if not each["sweeps"]]
    began, found, loads = time.time(), {}, []
    for i, (name, number, of) in enumerate(pieces):
        progress(i + 1, len(pieces), f"{name} {number + 1}/{of}", began)
        piece = journal.piece(f"{name}-{number}-of-{of}", lambda: portion(name, number, of))
        found.setdefault(name, []).append(piece["measured"])
        loads.append(piece["load"])
    if sys.stderr.isatty():
        print(file=sys.stderr)

    figures = {
        "about": {
            "date": datetime.datetime.now(datetime.timezone.utc).strftime("%Y-%m-%d"),
            "processor": description,
            "cores": os.cpu_count(),
            "system": platform.freedesktop_os_release()["PRETTY_NAME"],
            "load": significant(statistics.median(loads)),
            "portions": [sweeps, searches, lanes],
            "trial": trial,
        },
        "operations": {each["operation"]: figures_of(each, found[each["operation"]]) for each in operations},
    }
    write(arguments.kept, text_of(figures))
    if not trial:
        run(TOOL, "record", arguments.kept)
        run(TOOL, "heads", *sorted((ROOT / "src").glob("*/*.cpp")))
    journal.end()


def read(path):
    return common.read(path, ["about", "operations"])


def main():
    parser = argparse.ArgumentParser(prog="scripts/report accuracy", description=__doc__)
    what = parser.add_mutually_exclusive_group()
    what.add_argument("--render", action="store_true", help="make document and plots from the kept figures alone")
    what.add_argument("--check", action="store_true",
                      help="fail if they are not what the kept figures give, or if these contradict the record of errors")
    what.add_argument("--fresh", action="store_true", help="do not continue a run that was interrupted")
    parser.add_argument("--trial", metavar="FOLDER", type=pathlib.Path,
                        help="a quick run with few lanes, in this folder instead of docs; the record stays as it is")
    parser.add_argument("--threads", type=int, choices=range(1, 257), metavar="NUMBER", default=os.cpu_count(),
                        help="all cores unless given")
    parser.add_argument("operations", nargs="*", metavar="OPERATION", help="with --trial: these alone")
    arguments = parser.parse_args()
    if arguments.operations and not arguments.trial:
        parser.error("only a trial measures some operations alone")
    folder = arguments.trial or DOCS
    kept = arguments.kept = folder / "accuracy.json"
    if not folder.is_dir():
        fail(f"there is no folder {folder}")
    if not (arguments.render or arguments.check):
        measure(arguments)
    figures = read(kept)
    try:
        files = accuracy_document.make(figures, RECORD)
    except accuracy_document.Contradiction as error:
        fail(f"the figures contradict {RECORD.name}: {error}")
    except (KeyError, TypeError, ValueError, AttributeError, ArithmeticError) as error:
        fail(f"the figures are incomplete: {kept}: {error!r}")
    common.publish(folder, "accuracy", files, arguments.check)
    if not (arguments.render or arguments.check):
        print(folder / "accuracy.md", file=sys.stderr)


if __name__ == "__main__":
    try:
        main()
    except KeyboardInterrupt:
        fail("interrupted; the next run continues")
