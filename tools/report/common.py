"""What the reports share: measuring in pieces that an interrupted run keeps, and writing what is made of the figures."""
import json
import math
import os
import pathlib
import re
import shutil
import subprocess
import sys
import time

ROOT = pathlib.Path(__file__).resolve().parents[2]
DOCS = ROOT / "docs"


def fail(message):
    sys.exit(f"report: {message}")


def run(*command, **more):
    done = subprocess.run([str(word) for word in command], text=True, stdout=subprocess.PIPE, **more)
    if done.returncode != 0:
        fail(f"{pathlib.Path(command[0]).name} ended with an error: {' '.join(map(str, command[1:]))}")
    return done.stdout


def write(path, text):
    """Replaces a file as a whole."""
    temporary = path.with_name(path.name + ".new")
    try:
        temporary.write_text(text)
        temporary.replace(path)
    finally:
        temporary.unlink(missing_ok=True)


def processor():
    fields = dict(re.findall(r"^([^\t:]+)\s*: (.*)$", pathlib.Path("/proc/cpuinfo").read_text(), re.M))
    flags = fields["flags"].split()
    described = f"{fields['model name']}, family {fields['cpu family']}, model {fields['model']}"
    return described + (", a virtual machine" if "hypervisor" in flags else ""), flags


class Journal:
    """What was measured so far, a file for each piece, so that an interrupted run continues. A file that a failing
    machine has damaged counts as missing."""

    def __init__(self, folder, conditions, fresh):
        self.folder = folder
        kept = folder / "conditions.json"
        if fresh or self.content(kept) != conditions:
            shutil.rmtree(folder, ignore_errors=True)
            folder.mkdir(parents=True)
            write(kept, json.dumps(conditions))

    def piece(self, name, measure):
        path = self.folder / f"{name}.json"
        if self.content(path) is None:
            measured = measure()
            write(path, json.dumps({"load": os.getloadavg()[0], "measured": measured}))
        return self.content(path)

    @staticmethod
    def content(path):
        try:
            return json.loads(path.read_text())
        except (OSError, ValueError):
            return None

    def end(self):
        shutil.rmtree(self.folder)


def significant(number):
    """To four digits. An infinite error becomes text, which JSON can hold."""
    rounded = float(f"{number:.4g}")
    return rounded if math.isfinite(rounded) else "inf"


def progress(done, of, what, began):
    terminal = sys.stderr.isatty()
    text = f"[{done}/{of}] {what}, {(time.time() - began) / 60:.1f} min"
    print(f"\r\033[K{text}" if terminal else text, end="" if terminal else "\n", file=sys.stderr, flush=True)


def text_of(figures):
    """JSON with a line for each form."""
    def lines(content):
        if isinstance(content, dict):
            return "{\n" + ",\n".join(f"{json.dumps(name)}: {json.dumps(of, allow_nan=False)}"
                                      for name, of in content.items()) + "\n}"
        return "[\n" + ",\n".join(map(json.dumps, content)) + "\n]"

    return "{\n" + ",\n".join(f"{json.dumps(part)}: {lines(content)}" for part, content in figures.items()) + "\n}\n"


def read(path, parts):
    """The kept figures, which have these parts."""
    try:
        figures = json.loads(path.read_text())
        if list(figures) != parts:
            raise ValueError("it has other parts")
        return figures
    except (OSError, ValueError) as error:
        fail(f"cannot read the figures: {path}: {error}")


def gnuplot(script):
    program = shutil.which("gnuplot") or fail("there is no gnuplot (Debian package gnuplot-nox)")
    return run(program, input=script)


def publish(folder, report, files, check):
    """Writes a report's files and removes plots that it no longer has; or fails if they are not these."""
    superfluous = [plot for plot in folder.glob(f"{report}-*.svg") if plot.name not in files]
    if check:
        stale = [name for name, text in files.items()
                 if not (folder / name).exists() or (folder / name).read_text() != text]
        stale += [plot.name for plot in superfluous]
        if stale:
            fail(f"not what the kept figures give: {', '.join(stale)}; run scripts/report {report} --render")
        return
    for name, text in files.items():
        write(folder / name, text)
    for plot in superfluous:
        plot.unlink()
