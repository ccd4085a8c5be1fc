"""Times Lumidate, the floor and the peer tools on the generated sets.

Every measurement is one whole process over every file of a set, run under
/usr/bin/time -v for its peak RSS; the wall time is taken here with a
monotonic clock because time's own is only good to 10 ms. Runs are
interleaved (run 1 of every program, then run 2, ...) so that the machine's
noise falls on all of them alike. Reading is timed with a warm cache (one
untimed pass first); shifting is timed on a fresh copy of the set per run,
copied and synced before the clock starts. On the sets of large files
(RAW, HEIC) the programs that change only the date bytes in place share one
copy, whose dates are written back and flushed after each of their runs,
instead of copying gigabytes per run; the peers, which rewrite whole files,
still get a fresh copy each.
"""
import datetime
import filecmp
import os
import shutil
import subprocess
import time

TIME = "/usr/bin/time"
DATE_KEYS = ["Exif.Photo.DateTimeOriginal", "Exif.Photo.DateTimeDigitized", "Exif.Image.DateTime"]


class Program:
    """One command to time. `argv` gets the file names appended; `kind` is
    "floor", "lumidate" or "peer"; `probe` is a command whose success says
    the program is there."""

    def __init__(self, key, label, kind, argv, probe=None, missing="not installed"):
        self.key, self.label, self.kind, self.argv = key, label, kind, argv
        self.probe, self.missing = probe, missing
        self.skip_reason = None
        self.walls, self.rss_kb, self.start_walls, self.cpus = [], [], [], []


def available(prog):
    if prog.probe is None:
        return True
    if shutil.which(prog.probe[0]) is None and not os.path.exists(prog.probe[0]):
        return False
    try:
        return subprocess.run(prog.probe, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                              timeout=60).returncode == 0
    except OSError:
        return False


def read_programs(cli, floor, extra=None, jpeg=True):
    """`extra`, an (offset, length) the floor reads after the head; `jpeg`,
    whether the set is of JPEGs, which jhead alone among the peers needs."""
    floor_prog = Program("floor", "floor: pread 64 KiB", "floor", [floor, "read"])
    if extra:
        floor_prog = Program("floor", "floor: pread 64 KiB + the Exif item (%d bytes)" % extra[1], "floor",
                             [floor, "read", "--also", str(extra[0]), str(extra[1])])
    programs = [
        floor_prog,
        Program("lumidate", "lumidate-cli dates", "lumidate", [cli, "dates"],
                probe=[cli, "dates", "--help"], missing="not built yet"),
        Program("jhead", "jhead", "peer", ["jhead"], probe=["jhead", "-V"]),
        Program("exiv2", "exiv2 -K (3 dates)", "peer",
                ["exiv2", "-q"] + [a for k in DATE_KEYS for a in ("-K", k)],
                probe=["exiv2", "--version"]),
        Program("exiftool", "exiftool -fast2 (3 dates)", "peer",
                ["exiftool", "-fast2", "-DateTimeOriginal", "-CreateDate", "-ModifyDate"],
                probe=["exiftool", "-ver"]),
    ]
    return [p for p in programs if jpeg or p.key != "jhead"]


def shift_programs(cli, floor, date_at, jpeg=True):
    """On other sets than JPEG ones only exiftool among the peers writes."""
    programs = [
        Program("floor-write", "floor: write 19 bytes", "floor",
                [floor, "write", "--at", str(date_at)]),
        Program("floor-fsync", "floor: write 19 bytes + fsync", "floor",
                [floor, "write", "--fsync", "--at", str(date_at)]),
        Program("floor-syncfs", "floor: write 19 bytes, then one syncfs", "floor",
                [floor, "write", "--syncfs", "--at", str(date_at)]),
        Program("lumidate", "lumidate-cli shift --hours 1", "lumidate",
                [cli, "shift", "--hours", "1"],
                probe=[cli, "shift", "--help"], missing="not built yet"),
        Program("jhead", "jhead -ta+1:00", "peer", ["jhead", "-q", "-ta+1:00"],
                probe=["jhead", "-V"]),
        Program("exiv2", "exiv2 -a 1:00 ad", "peer", ["exiv2", "-q", "-a", "1:00", "ad"],
                probe=["exiv2", "--version"]),
        Program("exiftool", "exiftool -AllDates+=1 (in place)", "peer",
                ["exiftool", "-q", "-overwrite_original_in_place", "-AllDates+=1"],
                probe=["exiftool", "-ver"]),
    ]
    return [p for p in programs if jpeg or p.kind != "peer" or p.key == "exiftool"]


def run_timed(argv, cwd, log_dir, tag, keep_output=False):
    """Runs argv once; answers (wall seconds, peak RSS in KiB, exit status,
    last line of its standard error, user + system CPU seconds). With
    keep_output, its standard output goes to LOG_DIR/TAG.stdout."""
    time_out = os.path.join(log_dir, tag + ".time")
    err_path = os.path.join(log_dir, tag + ".stderr")
    out_path = os.path.join(log_dir, tag + ".stdout") if keep_output else os.devnull
    with open(err_path, "wb") as err, open(out_path, "wb") as out:
        start = time.perf_counter()
        status = subprocess.run([TIME, "-v", "-o", time_out] + argv, cwd=cwd,
                                stdin=subprocess.DEVNULL, stdout=out, stderr=err).returncode
        wall = time.perf_counter() - start
    rss, cpu = 0, 0.0
    with open(time_out) as f:
        for line in f:
            if "Maximum resident set size" in line:
                rss = int(line.rsplit(":", 1)[1])
            elif "User time (seconds)" in line or "System time (seconds)" in line:
                cpu += float(line.rsplit(":", 1)[1])
    with open(err_path, "rb") as f:
        lines = f.read().decode(errors="replace").strip().splitlines()
    return wall, rss, status, (lines[-1] if lines else ""), cpu


def fresh_copy(source, target):
    shutil.rmtree(target, ignore_errors=True)
    os.makedirs(os.path.dirname(target), exist_ok=True)
    subprocess.run(["cp", "-r", source, target], check=True)
    # The copy's write-back must not land inside the timed run.
    subprocess.run(["sync", "-f", target], check=True)


def shifted_check(folder, first_name, want_dto):
    """Whether the shift really happened: an independent reader sees the
    first file's DateTimeOriginal one hour later."""
    out = subprocess.run(["exiftool", "-s3", "-DateTimeOriginal", first_name], cwd=folder,
                         capture_output=True, text=True).stdout.strip()
    return out == want_dto, out


def working_copy(set_dir, work_dir, prog, restore):
    """The folder a shifting run works in. With `restore` (a function that
    writes a folder's original dates back), the floors and Lumidate share one
    copy, made once and restored after each run; others get a fresh copy."""
    if restore is None or prog.kind == "peer":
        cwd = os.path.join(work_dir, prog.key)
        fresh_copy(set_dir, cwd)
        return cwd
    cwd = os.path.join(work_dir, "in-place")
    if not os.path.isdir(cwd):
        fresh_copy(set_dir, cwd)
    return cwd


def shift_problem(prog, cwd, set_dir, first, want_dto, restore):
    """Why a shifting run that exited well does not count, or None; a shared
    copy gets its dates back here, and must then equal the original byte for
    byte: a shift in place changes nothing but the dates."""
    problem = None
    if prog.kind != "floor":
        ok, seen = shifted_check(cwd, first, want_dto)
        if not ok:
            problem = "did not shift: %s reads %r, expected %r" % (first, seen, want_dto)
    if restore is not None and prog.kind != "peer":
        restore(cwd)
        same = filecmp.cmp(os.path.join(cwd, first), os.path.join(set_dir, first), shallow=False)
        if not same:
            shutil.rmtree(cwd)  # the next program gets a fresh copy
            problem = problem or "changed bytes of %s other than its dates" % first
    return problem


def listed(stdout_path, text):
    with open(stdout_path, "rb") as f:
        return text.encode() in f.read()


def measure_set(name, set_dir, first_dto, programs, runs, work_dir, log_dir, shifting, ext="jpg", restore=None):
    files = sorted(f for f in os.listdir(set_dir) if f.endswith("." + ext))
    for p in programs:
        if not available(p):
            p.skip_reason = p.missing
    for p in programs:
        if p.skip_reason:
            print("    %-34s skipped: %s" % (p.label, p.skip_reason), flush=True)
    active = [p for p in programs if p.skip_reason is None]
    want_dto = None
    if shifting:
        first = datetime.datetime.strptime(first_dto, "%Y:%m:%d %H:%M:%S")
        want_dto = (first + datetime.timedelta(hours=1)).strftime("%Y:%m:%d %H:%M:%S")
    elif active:
        for p in active:  # warm cache, and a first check that the program works
            tag = "%s-%s-warm" % (name, p.key)
            _, _, status, last, _ = run_timed(p.argv + files, set_dir, log_dir, tag, keep_output=True)
            if status != 0:
                p.skip_reason = "failed (exit %d): %s" % (status, last)
            elif p.kind != "floor" and not listed(os.path.join(log_dir, tag + ".stdout"), first_dto):
                # A program that passes over files it cannot read is not fast.
                p.skip_reason = "did not list %s's DateTimeOriginal %s" % (files[0], first_dto)
            if p.skip_reason:
                print("    %-34s skipped: %s" % (p.label, p.skip_reason), flush=True)
        active = [p for p in active if p.skip_reason is None]
    for run in range(runs if not shifting else 0):
        # The same program on one file: what starting the process costs.
        for p in active:
            wall, _, status, _, _ = run_timed(p.argv + files[:1], set_dir, log_dir,
                                           "%s-%s-start-%d" % (name, p.key, run + 1))
            if status == 0:
                p.start_walls.append(wall)
    for run in range(runs):
        for p in active:
            if p.skip_reason:
                continue
            cwd = set_dir
            if shifting:
                cwd = working_copy(set_dir, work_dir, p, restore)
            tag = "%s-%s-%s-%d" % (name, "shift" if shifting else "read", p.key, run + 1)
            wall, rss, status, last, cpu = run_timed(p.argv + files, cwd, log_dir, tag)
            problem = shift_problem(p, cwd, set_dir, files[0], want_dto, restore) if shifting else None
            if status != 0 or problem:
                p.skip_reason = "failed (exit %d): %s" % (status, last) if status != 0 else problem
                print("    %-34s skipped: %s" % (p.label, p.skip_reason), flush=True)
                continue
            p.walls.append(wall)
            p.rss_kb.append(rss)
            p.cpus.append(cpu)
            if shifting and os.path.basename(cwd) == p.key:  # a 12 MP set is gigabytes: keep one copy at a time
                shutil.rmtree(cwd, ignore_errors=True)
            print("    %-34s run %d: %8.3f s  %7.1f MB" % (p.label, run + 1, wall, rss / 1024.0), flush=True)
    if shifting:
        shutil.rmtree(work_dir, ignore_errors=True)
    return {"count": len(files), "programs": [
        {"key": p.key, "label": p.label, "kind": p.kind, "skip": p.skip_reason,
         "walls": p.walls, "rss_kb": p.rss_kb, "start_walls": p.start_walls, "cpus": p.cpus} for p in programs]}
