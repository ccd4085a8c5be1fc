"""Turns measured runs into per-file costs, ratios, the goal check and the
Markdown of bench/RESULTS.md."""
import statistics

# The floor each kind of measurement is compared with.
FLOOR_KEY = {"read": "floor", "shift": "floor-fsync"}
SECTION_TITLE = {
    "read": "Reading the three dates (warm cache)",
    "shift": "Shifting the three dates by one hour (fresh copy per run, the copy not timed)",
    "shift-restored": ("Shifting the three dates by one hour (dates written back in place before each run, "
                       "a fresh copy per run for exiftool, neither timed)"),
}
# The sets of large files, whose shifts in place are undone rather than copied.
RESTORED_SETS = ("raw", "heic")


def summary(prog, count):
    """Per-file median, min and max in seconds and the median peak RSS in MB,
    or None when the program was skipped or never ran."""
    if prog["skip"] or not prog["walls"] or count <= 0:
        return None
    walls = prog["walls"]
    return {
        "median": statistics.median(walls) / count,
        "min": min(walls) / count,
        "max": max(walls) / count,
        "rss_mb": statistics.median(prog["rss_kb"]) / 1024.0,
        "runs": len(walls),
        "start": statistics.median(prog["start_walls"]) if prog.get("start_walls") else None,
        "cpu": statistics.median(prog["cpus"]) / count if prog.get("cpus") else None,
    }


def per_file(seconds):
    """A per-file cost in the unit that keeps 3 significant digits readable."""
    us = seconds * 1e6
    if us < 1000:
        return "%.1f µs" % us if us < 100 else "%.0f µs" % us
    return "%.2f ms" % (us / 1000) if us < 100000 else "%.0f ms" % (us / 1000)


def ratio(a, b):
    if a is None or b is None or b <= 0:
        return None
    return a / b


def ratio_text(r):
    if r is None:
        return "–"
    if r < 0.1:
        return "%.3fx" % r
    return "%.2fx" % r if r < 10 else "%.0fx" % r


def stats_by_key(set_result):
    count = set_result["count"]
    return {p["key"]: summary(p, count) for p in set_result["programs"]}


def section_rows(kind, set_result):
    """The table rows of one set: program, median, spread, RSS, program/floor,
    peer/Lumidate."""
    stats = stats_by_key(set_result)
    floor = stats.get(FLOOR_KEY[kind])
    lum = stats.get("lumidate")
    rows = []
    for p in set_result["programs"]:
        s = stats[p["key"]]
        if s is None:
            reason = p["skip"] or "no runs"
            rows.append([p["label"], reason, "", "", "", "", "", ""])
            continue
        to_floor = ratio(s["median"], floor["median"] if floor else None)
        to_lum = ratio(s["median"], lum["median"] if lum else None) if p["kind"] == "peer" else None
        rows.append([p["label"], per_file(s["median"]),
                     "%s – %s" % (per_file(s["min"]), per_file(s["max"])),
                     per_file(s["cpu"]) if s["cpu"] is not None else "–",
                     "%.1f MB" % s["rss_mb"], ratio_text(to_floor), ratio_text(to_lum),
                     per_file(s["start"]) if s["start"] is not None else "–"])
    return rows


def markdown_table(header, rows):
    lines = ["| " + " | ".join(header) + " |", "|" + "---|" * len(header)]
    lines += ["| " + " | ".join(str(c) for c in r) + " |" for r in rows]
    return "\n".join(lines)


def goal(text, value, limit, smaller_is_better, unit="x"):
    """One row of the goal check: met, missed, or not measured."""
    if value is None:
        return [text, "not measured", "–"]
    met = value <= limit if smaller_is_better else value >= limit
    shown = ("%.2f%s" % (value, unit)) if unit == "x" else ("%.1f %s" % (value, unit))
    return [text, shown, "met" if met else "**missed**"]


def median_of(results, kind, set_name, key):
    set_result = results.get(kind, {}).get(set_name)
    if not set_result:
        return None
    s = stats_by_key(set_result).get(key)
    return s


def goal_rows(results):
    def med(kind, set_name, key):
        s = median_of(results, kind, set_name, key)
        return s["median"] if s else None

    rows = []
    for set_name in ("small", "large"):
        rows.append(goal("dates / floor read, %s set (≤ 1.5x)" % set_name,
                         ratio(med("read", set_name, "lumidate"), med("read", set_name, "floor")),
                         1.5, True))
    for set_name in ("small", "large"):
        rows.append(goal("shift / floor write+fsync, %s set (≤ 2x)" % set_name,
                         ratio(med("shift", set_name, "lumidate"),
                               med("shift", set_name, "floor-fsync")), 2.0, True))
    for set_name in ("raw", "heic"):
        rows.append(goal("dates / floor read (head, and the Exif item beyond it), %s set (≤ 1.5x)" % set_name,
                         ratio(med("read", set_name, "lumidate"), med("read", set_name, "floor")), 1.5, True))
        rows.append(goal("shift / floor write+fsync, %s set (≤ 2x)" % set_name,
                         ratio(med("shift", set_name, "lumidate"), med("shift", set_name, "floor-fsync")),
                         2.0, True))
    lum_shift = med("shift", "large", "lumidate")
    rows.append(goal("exiftool shift / Lumidate shift, large set (≥ 100x)",
                     ratio(med("shift", "large", "exiftool"), lum_shift), 100.0, False))
    rows.append(goal("exiftool shift / Lumidate shift, small set (≥ 100x)",
                     ratio(med("shift", "small", "exiftool"), med("shift", "small", "lumidate")),
                     100.0, False))
    rows.append(goal("shift / floor plain write (no flush), small set (≤ 3x)",
                     ratio(med("shift", "small", "lumidate"), med("shift", "small", "floor-write")),
                     3.0, True))
    rows.append(goal("jhead shift / Lumidate shift, large set (≥ 20x)",
                     ratio(med("shift", "large", "jhead"), lum_shift), 20.0, False))
    rss = median_of(results, "read", "small", "lumidate")
    rows.append(goal("peak RSS of dates over the small set (< 150 MB)",
                     rss["rss_mb"] if rss else None, 150.0, True, unit="MB"))
    model = results.get("model") or {}
    # The listing timed beside the loads when there is one; else the
    # listing of the reading section.
    dates_total = model.get("dates_beside_s")
    dates_small = results.get("read", {}).get("small")
    if dates_total is None and dates_small:
        s = median_of(results, "read", "small", "lumidate")
        dates_total = s["median"] * dates_small["count"] if s else None
    rows.append(goal("model load / dates, small set (≤ 2x)",
                     ratio(model.get("load_s"), dates_total), 2.0, True))
    files = model.get("files")
    for op in ("apply", "undo", "sort (slowest column)"):
        key = {"apply": "apply_s", "undo": "undo_s", "sort (slowest column)": "sort_max_s"}[op]
        value = model.get(key)
        rows.append(goal("model %s over %s files (< 100 ms at 10,000)" % (op, files or "the"),
                         value * 1000 if value is not None else None, 100.0, True, unit="ms"))
    rows.append(goal("thumbnails of 12 MP files per second, all cores (≥ 150)",
                     model.get("thumbs_per_s"), 150.0, False, unit="/s"))
    return rows


def median_record(samples):
    """The median of every number of the model benchmark's runs, key by key
    (nested objects too); other values are taken from the first run."""
    out = {}
    for key, first in samples[0].items():
        values = [s[key] for s in samples if key in s]
        if isinstance(first, dict):
            out[key] = median_record(values)
        elif isinstance(first, (int, float)) and not isinstance(first, bool):
            out[key] = statistics.median(values)
        else:
            out[key] = first
    return out


def spread(values, scale=1.0, form="%.0f"):
    return " – ".join(form % (v * scale) for v in (min(values), max(values)))


def model_summary(m):
    runs = len(m.get("load_runs_s") or [])
    text = ("Measured by `lumidate-bench-model` with %d worker threads" % m.get("threads", 0))
    if runs:
        text += (", %d runs, medians (each run follows a timed `lumidate-cli dates` over the same "
                 "set, the listing the load is compared with: %.0f ms, %s ms)"
                 % (runs, m["dates_beside_s"] * 1000, spread(m["dates_runs_s"], 1000)))
    text += (": loading %d files of the small set into one multi-file document %.0f ms"
             % (m.get("files", 0), m.get("load_s", 0) * 1000))
    if runs:
        text += " (%s ms)" % spread(m["load_runs_s"], 1000)
    text += ("; one Forward apply of one hour over all of them %.1f ms; one undo %.1f ms; the slowest "
             "sort of the six columns %.1f ms. Thumbnails of the large set through the image-file model "
             "(open, then the camera's thumbnail when it comes out at the size the main image would, "
             "else a scaled decode; fit into 150 x 150): %.0f files per second; decoding every main "
             "image instead (scaled, first 100 files): %.0f files per second."
             % (m.get("apply_s", 0) * 1000, m.get("undo_s", 0) * 1000, m.get("sort_max_s", 0) * 1000,
                m.get("thumbs_per_s", 0), m.get("decoded_thumbs_per_s", 0)))
    return text


def window_rows(w):
    """The window's figures against their goals."""
    def ms(key):
        return w.get(key) * 1000 if w.get(key) is not None else None
    return [
        goal("window: all %s rows shown / lumidate-cli dates (≤ 1.5x)" % w.get("files", "the"),
             ratio(w.get("first_rows_s"), w.get("dates_beside_s")), 1.5, True),
        goal("window: longest GUI stall while loading (< 50 ms)", ms("load_stall_s"), 50.0, True, unit="ms"),
        goal("window: longest GUI stall, fast scroll with thumbnails (< 50 ms)", ms("scroll_stall_s"), 50.0,
             True, unit="ms"),
        goal("window: apply of 1 h with the view's update (< 100 ms)", ms("apply_s"), 100.0, True, unit="ms"),
        goal("window: undo with the view's update (< 100 ms)", ms("undo_s"), 100.0, True, unit="ms"),
        goal("window: sort, slowest column, with the view's update (< 100 ms)", ms("sort_max_s"), 100.0, True,
             unit="ms"),
        goal("window: Save All / lumidate-cli shift (≤ 1.2x)", ratio(w.get("save_all_s"), w.get("shift_beside_s")),
             1.2, True),
        goal("window: peak RSS, every thumbnail seen once (< 400 MB)", w.get("peak_rss_thumbs_mib"), 400.0, True,
             unit="MB"),
    ]


def window_summary(w):
    return ("Measured by `lumidate-bench-window`: the real multi-file window on the offscreen platform, "
            "opened through the document controller on a fresh copy of the small set (%s files). All rows "
            "shown after %.3f s (from the program's start %.3f s), `lumidate-cli dates` beside it %.3f s. "
            "Save All %.3f s, `lumidate-cli shift --hours 1` on another fresh copy beside it %.3f s. "
            "Peak RSS %.0f MB after every thumbnail was seen once, %.0f MB at the end." % (
                w.get("files"), w.get("first_rows_s", 0), w.get("first_rows_from_start_s", 0),
                w.get("dates_beside_s", 0), w.get("save_all_s", 0), w.get("shift_beside_s", 0),
                w.get("peak_rss_thumbs_mib", 0), w.get("peak_rss_mib", 0)))


def render(results, machine, sets, command, model_note, notes="", window_note=""):
    out = ["# Benchmark results", "",
           "Written by `%s` on %s. Lumidate %s." % (command, machine["date"], machine["commit"]),
           "Per-file cost is a whole process's wall time over the set divided by its number of",
           "files (median of the runs; min – max beside it); peak RSS comes from `/usr/bin/time -v`.",
           "`/ floor` compares with the floor of the same section (pread of 64 KiB for reading, and",
           "of the Exif item too where it lies beyond, as in HEIC files; 19 bytes + fsync for shifting);",
           "`/ Lumidate` says how many times slower a peer is. On the RAW and HEIC sets the floors and",
           "Lumidate shift one shared copy whose dates are written back and flushed between runs.",
           "`CPU per file` is user + system time (all threads) per file, median of the runs; it is",
           "less disturbed by other work on the machine than wall time, but only good to 10 ms per run.",
           "`1 file alone` is the median wall time of the same program given only the first file:",
           "mostly the cost of starting the process, which the per-file figures include, spread",
           "over the set (it weighs more on the 500-file set than on the 10,000-file one).",
           "Shifting is checked after every run: an independent reader (exiftool) must see the first",
           "file's DateTimeOriginal one hour later. Lumidate and the durable floor call fsync for",
           "each file; the peers rewrite each file whole and call no fsync (checked once with strace).",
           "", "## Machine", ""]
    out += ["- %s: %s" % (k, v) for k, v in machine["lines"]]
    out += ["", "## Sets", ""]
    out += ["- %s: %s" % (name, text) for name, text in sets]
    header = ["program", "per file", "min – max", "CPU per file", "peak RSS", "/ floor", "/ Lumidate",
              "1 file alone"]
    for kind in ("read", "shift"):
        for set_name, set_result in results.get(kind, {}).items():
            title = SECTION_TITLE["shift-restored" if kind == "shift" and set_name in RESTORED_SETS else kind]
            out += ["", "## %s: %s set (%d files)" % (title, set_name,
                                                        set_result["count"]), ""]
            out.append(markdown_table(header, section_rows(kind, set_result)))
    model = results.get("model")
    out += ["", "## Document model and thumbnails", "", model_summary(model) if model else model_note]
    window = results.get("window")
    out += ["", "## Desktop window", "", window_summary(window) if window else (window_note or "Not measured.")]
    out += ["", "## Goals", ""]
    out.append(markdown_table(["goal", "measured", "status"],
                              goal_rows(results) + (window_rows(window) if window else [])))
    if notes.strip():
        out += ["", "## Notes", "", notes.strip()]
    out.append("")
    return "\n".join(out)
