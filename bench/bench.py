"""The benchmark's driver: generates the sets, times every program, and
prints and writes the results. bench/run builds the programs and calls this."""
import argparse
import datetime
import json
import os
import platform
import shutil
import statistics
import subprocess
import sys
import time

import gensets
import measure
import report


def parse_args(argv):
    p = argparse.ArgumentParser(prog="bench/run")
    p.add_argument("--small", type=int, default=10000, help="files in the 640x480 set")
    p.add_argument("--large", type=int, default=500, help="files in the 12 MP set")
    p.add_argument("--raw", type=int, default=40, help="files in the RAW (DNG, 22 MB) set")
    p.add_argument("--heic", type=int, default=200, help="files in the HEIC (12 MP) set")
    p.add_argument("--runs", type=int, default=5, help="timed runs of each program")
    p.add_argument("--scratch", default="/tmp/lumidate-bench", help="folder for sets and copies")
    p.add_argument("--cli", required=True, help="path of lumidate-cli")
    p.add_argument("--floor", required=True, help="path of the floor program")
    p.add_argument("--model", help="path of the document-model benchmark, when built")
    p.add_argument("--window", help="path of the window benchmark, when built")
    p.add_argument("--results", help="Markdown file to write the results to")
    p.add_argument("--command", default="bench/run", help="the command line, for the record")
    p.add_argument("--note", default="", help="a line about the conditions of this run")
    p.add_argument("--report-only", action="store_true",
                   help="write the table again from the last run's results.json (e.g. after editing notes.md)")
    p.add_argument("--shift-sets", default="small,large,raw,heic",
                   help="comma-separated sets to time shifting on (default: all four)")
    return p.parse_args(argv)


def command_output(argv):
    try:
        return subprocess.run(argv, capture_output=True, text=True, timeout=30).stdout.strip()
    except (OSError, subprocess.SubprocessError):
        return ""


def first_line_with(path, prefix, separator=":"):
    try:
        with open(path) as f:
            for line in f:
                if line.startswith(prefix) and separator in line:
                    return line.split(separator, 1)[1].strip()
    except OSError:
        pass
    return "unknown"


def load_average():
    try:
        with open("/proc/loadavg") as f:
            return " ".join(f.read().split()[:3])
    except OSError:
        return "unknown"


def busy_note(*loads):
    """A warning when other work ran on the machine beside the benchmark."""
    cores = os.cpu_count() or 1
    ones = []
    for load in loads:
        try:
            ones.append(float(load.split()[0]))
        except (ValueError, IndexError):
            pass
    if ones and max(ones) > 0.5 * cores:
        return ("other work was running on this machine during the run (1-minute load average "
                "up to %.1f on %d cores), so every figure is slower and noisier than on an idle "
                "machine; ratios within one run suffer less, as the programs take turns run by run" % (max(ones), cores))
    return ""


def machine_description(scratch, repo, load_at_start, note):
    mem_kb = first_line_with("/proc/meminfo", "MemTotal").split()[0]
    disk = command_output(["findmnt", "-n", "-o", "SOURCE,FSTYPE", "--target", scratch])
    device = disk.split()[0] if disk else ""
    rota = command_output(["lsblk", "-d", "-n", "-o", "ROTA,MODEL", device]) if device else ""
    kind = {"0": "solid-state", "1": "reported rotational"}.get(rota.split()[0] if rota else "", "")
    commit = command_output(["git", "-C", repo, "rev-parse", "--short", "HEAD"]) or "unknown"
    if command_output(["git", "-C", repo, "status", "--porcelain", "--untracked-files=no"]):
        commit += " with uncommitted changes"
    lines = [
        ("CPU", "%s, %d logical cores (nproc)" % (first_line_with("/proc/cpuinfo", "model name"),
                                                 os.cpu_count() or 0)),
        ("memory", "%.1f GiB" % (int(mem_kb) / 1048576.0) if mem_kb.isdigit() else "unknown"),
        ("disk", "%s (%s) for %s" % (disk or "unknown", kind or "kind unknown", scratch)),
        ("system", "%s %s, %s" % (platform.system(), platform.release(),
                                  first_line_with("/etc/os-release", "PRETTY_NAME", "=").strip('"'))),
        ("tools", "exiftool %s, %s, %s" % (
            command_output(["exiftool", "-ver"]) or "absent",
            (command_output(["exiv2", "--version"]).splitlines() or ["exiv2 absent"])[0],
            command_output(["jhead", "-V"]) or "jhead absent")),
        ("load average (1, 5, 15 min)", "%s at the start, %s at the end" % (load_at_start, load_average())),
    ]
    busy = busy_note(load_at_start, load_average())
    if busy:
        lines.append(("other work", busy))
    if note:
        lines.append(("conditions", note))
    return {"date": datetime.datetime.now(datetime.timezone.utc).strftime("%Y-%m-%d %H:%M UTC"),
            "commit": commit, "lines": lines}


def run_model_bench(model, cli, scratch, runs):
    """Runs the model benchmark `runs` times; each run is preceded by a timed
    `lumidate-cli dates` over the same small set, which the load is compared
    with, so that other work on the machine weighs on both alike. Answers the
    median of every figure, with the loads and listings of each run."""
    if not model or not os.path.exists(model):
        return None, ("Not measured: the document-model benchmark is not built yet (it is built "
                      "once the image-file and multi-file document classes are in the tree).")
    small = os.path.join(scratch, "sets", "small")
    argv = [model, "--small", small, "--large", os.path.join(scratch, "sets", "large")]
    print("== document model and thumbnails", flush=True)
    samples, listings = [], []
    for run in range(1, runs + 1):
        start = time.monotonic()
        subprocess.run([cli, "dates", small], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        listings.append(time.monotonic() - start)
        done = subprocess.run(argv, capture_output=True, text=True)
        if done.returncode != 0:
            tail = (done.stderr.strip().splitlines() or [""])[-1]
            return None, "Not measured: the model benchmark failed (exit %d): %s" % (done.returncode, tail)
        samples.append(json.loads(done.stdout))
        print("    run %d: load %.3f s, dates beside it %.3f s" % (run, samples[-1].get("load_s", 0), listings[-1]),
              flush=True)
    data = report.median_record(samples)
    data["load_runs_s"] = [s.get("load_s") for s in samples]
    data["dates_runs_s"] = listings
    data["dates_beside_s"] = statistics.median(listings)
    return data, ""


def timed(argv, cwd=None):
    start = time.monotonic()
    done = subprocess.run(argv, cwd=cwd, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    return time.monotonic() - start, done.returncode


def fresh_copy(source, target):
    shutil.rmtree(target, ignore_errors=True)
    shutil.copytree(source, target)
    subprocess.run(["sync"])
    return target


def run_window_bench(window, cli, scratch, runs):
    """Runs the window benchmark `runs` times on a fresh copy of the small
    set (its Save All changes the files). Beside each run, on the same files,
    `lumidate-cli dates` (what loading is compared with) and `lumidate-cli
    shift --hours 1` on another fresh copy (what Save All is compared with)."""
    if not window or not os.path.exists(window):
        return None, "Not measured: the window benchmark is not built."
    small = os.path.join(scratch, "sets", "small")
    work = os.path.join(scratch, "window")
    print("== the multi-file window", flush=True)
    samples, listings, shifts = [], [], []
    for run in range(1, runs + 1):
        copy = fresh_copy(small, work)
        listings.append(timed([cli, "dates", copy])[0])
        seconds, code = timed([cli, "shift", "--hours", "1", copy])
        if code != 0:
            return None, "Not measured: lumidate-cli shift failed beside the window (exit %d)" % code
        shifts.append(seconds)
        copy = fresh_copy(small, work)
        done = subprocess.run([window, "--set", copy], capture_output=True, text=True)
        if done.returncode != 0:
            tail = (done.stderr.strip().splitlines() or [""])[-1]
            return None, "Not measured: the window benchmark failed (exit %d): %s" % (done.returncode, tail)
        samples.append(json.loads(done.stdout))
        print("    run %d: rows shown %.3f s (dates %.3f s), Save All %.3f s (shift %.3f s)" % (
            run, samples[-1]["first_rows_s"], listings[-1], samples[-1]["save_all_s"], shifts[-1]), flush=True)
    shutil.rmtree(work, ignore_errors=True)
    data = report.median_record(samples)
    data["dates_beside_s"] = statistics.median(listings)
    data["shift_beside_s"] = statistics.median(shifts)
    return data, ""


def measure_one_set(args, name, stamp, results, log_dir):
    """Times reading, then shifting, on one set. The JPEG sets keep their
    fresh copy per run; the sets of large files restore their dates in place
    for the programs that change nothing else."""
    folder = os.path.join(args.scratch, "sets", name)
    first_dto = gensets.dates_for(1)["DateTimeOriginal"]
    jpeg = stamp.get("extension", "jpg") == "jpg"
    ext = gensets.EXTENSION[name]
    print("== reading dates, %s set" % name, flush=True)
    results["read"][name] = measure.measure_set(
        name, folder, first_dto,
        measure.read_programs(args.cli, args.floor, gensets.floor_extra_read(stamp), jpeg),
        args.runs, None, log_dir, shifting=False, ext=ext)
    if name not in args.shift_sets.split(","):
        return
    print("== shifting dates, %s set" % name, flush=True)
    restore = None if jpeg else (lambda cwd: gensets.restore_fields(cwd, stamp))
    results["shift"][name] = measure.measure_set(
        name, folder, first_dto,
        measure.shift_programs(args.cli, args.floor, stamp["fields"]["DateTimeOriginal"], jpeg),
        args.runs, os.path.join(args.scratch, "work"), log_dir, shifting=True, ext=ext, restore=restore)


def main(argv):
    args = parse_args(argv)
    repo = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
    if args.report_only:
        with open(os.path.join(args.scratch, "results.json")) as f:
            return write_report(json.load(f), repo, args.results)
    load_at_start = load_average()
    os.makedirs(args.scratch, exist_ok=True)
    log_dir = os.path.join(args.scratch, "logs")
    shutil.rmtree(log_dir, ignore_errors=True)
    os.makedirs(log_dir)

    print("== sets in %s" % args.scratch, flush=True)
    set_lines, stamps = [], {}
    counts = {"small": args.small, "large": args.large, "raw": args.raw, "heic": args.heic}
    for name, count in counts.items():
        if count <= 0:
            continue
        stamps[name] = gensets.build_set(args.scratch, name, count)
        folder = os.path.join(args.scratch, "sets", name)
        gensets.check_with_exiftool(folder, sorted({1, (count + 1) // 2, count}), gensets.EXTENSION[name])
        text = gensets.describe(name, stamps[name])
        print("  %s: %s" % (name, text), flush=True)
        set_lines.append((name, text))

    results = {"read": {}, "shift": {}}
    for name, stamp in stamps.items():
        measure_one_set(args, name, stamp, results, log_dir)

    results["model"], model_note = run_model_bench(args.model, args.cli, args.scratch, args.runs)
    results["window"], window_note = run_window_bench(args.window, args.cli, args.scratch, args.runs)
    record = {"results": results, "sets": set_lines, "command": args.command, "model_note": model_note,
              "window_note": window_note,
              "machine": machine_description(args.scratch, repo, load_at_start, args.note)}
    with open(os.path.join(args.scratch, "results.json"), "w") as f:
        json.dump(record, f, indent=1)
    return write_report(record, repo, args.results)


def write_report(record, repo, results_path):
    # The reading of the figures, written by people, kept in bench/notes.md.
    notes_path = os.path.join(repo, "bench", "notes.md")
    notes = open(notes_path).read() if os.path.exists(notes_path) else ""
    text = report.render(record["results"], record["machine"], record["sets"], record["command"],
                         record["model_note"], notes, record.get("window_note", ""))
    print()
    print(text)
    if results_path:
        with open(results_path, "w") as f:
            f.write(text)
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
