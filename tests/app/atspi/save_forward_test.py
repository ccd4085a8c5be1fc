"""End to end through AT-SPI: lumidate is handed a folder of three photos,
opens them in one window, shifts DateTimeOriginal forward by one hour,
saves them all and quits. On disk each DateTimeOriginal has moved by
exactly one hour, and every other byte of every file is unchanged.

usage: save_forward_test.py LUMIDATE LUMIDATE_CLI PHOTO_FOLDER
"""

import datetime
import json
import os
import shutil
import subprocess
import sys
import tempfile
import time

import pyatspi

import atspi_driver as d
import exif_dates

ONE_HOUR = datetime.timedelta(hours=1)
EXIF_FORMAT = "%Y:%m:%d %H:%M:%S"
TARGETS = {"DateTimeOriginal": True, "DateTimeDigitized": False, "DateTime": False}


def set_checked(app, name, wanted):
    box = app.find(pyatspi.ROLE_CHECK_BOX, name)
    if box.getState().contains(pyatspi.STATE_CHECKED) != wanted:
        d.do_action(box, "Toggle", "Press", "click")
        d.wait_until(f"'{name}' to be {'on' if wanted else 'off'}",
                     lambda: box.getState().contains(pyatspi.STATE_CHECKED) == wanted)


def drive(app):
    d.press(app.find(pyatspi.ROLE_PUSH_BUTTON, "Open in One Window"))
    window = app.frame("(3 images)")
    table = app.find(pyatspi.ROLE_TABLE, None, within=window)
    d.wait_until("three rows in the file table", lambda: table.queryTable().nRows == 3)

    mode = d.find_combo(app, "Mode", ["Backward", "Forward", "Set Time"], within=window)
    d.choose_in_combo(mode, "Backward")
    d.choose_in_combo(mode, "Forward")
    for name, wanted in TARGETS.items():
        set_checked(app, name, wanted)
    d.set_number(app.find(pyatspi.ROLE_SPIN_BUTTON, "Hours", within=window), 1)
    d.press(app.find(pyatspi.ROLE_PUSH_BUTTON, "Apply", within=window))

    save_all = d.menu_item(app, "File", "Save All")
    d.press(save_all)
    # Save All is enabled while some file is edited: disabled again, the save is over.
    d.wait_until("the save to finish", lambda: not d.is_enabled(save_all), timeout=30)
    d.quit_app(app)


def check_bytes(before, after, name):
    positions = exif_dates.date_positions(before)
    original_at = positions[exif_dates.TAG_ORIGINAL]
    old = datetime.datetime.strptime(exif_dates.date_text(before, original_at), EXIF_FORMAT)
    expected = (old + ONE_HOUR).strftime(EXIF_FORMAT).encode("ascii")
    if len(after) != len(before):
        raise d.DriverError(f"{name}: size changed from {len(before)} to {len(after)}")
    if after[original_at:original_at + 19] != expected:
        raise d.DriverError(f"{name}: DateTimeOriginal is {after[original_at:original_at + 19]!r}, "
                            f"expected {expected!r}")
    outside = before[:original_at] + before[original_at + 19:]
    if after[:original_at] + after[original_at + 19:] != outside:
        first = next(i for i in range(len(after)) if after[i] != before[i]
                     and not original_at <= i < original_at + 19)
        raise d.DriverError(f"{name}: byte {first} changed outside DateTimeOriginal")
    return expected.decode("ascii")


def check_with_cli(cli, folder, expected):
    listing = json.loads(subprocess.run([cli, "dates", "--json", folder], check=True,
                                        capture_output=True, text=True).stdout)
    seen = {os.path.basename(entry["path"]): entry["DateTimeOriginal"] for entry in listing}
    if seen != expected:
        raise d.DriverError(f"lumidate-cli reads {seen}, expected {expected}")


def main(lumidate, cli, source):
    started = time.monotonic()
    work = tempfile.mkdtemp(prefix="lumidate-atspi-")
    try:
        folder = os.path.join(work, "photos")
        shutil.copytree(source, folder)
        names = sorted(n for n in os.listdir(folder) if n.lower().endswith(".jpg"))
        if len(names) != 3:
            raise d.DriverError(f"{source} should hold three JPEG photos, it holds {names}")
        before = {n: open(os.path.join(folder, n), "rb").read() for n in names}
        app = d.start_private([lumidate, folder], work)
        try:
            drive(app)
        finally:
            app.kill()
        expected = {}
        for n in names:
            after = open(os.path.join(folder, n), "rb").read()
            expected[n] = check_bytes(before[n], after, n)
        check_with_cli(cli, folder, expected)
    finally:
        shutil.rmtree(work, ignore_errors=True)
    print(f"three photos shifted forward by one hour and saved through AT-SPI: OK "
          f"({time.monotonic() - started:.1f} s)")


if __name__ == "__main__":
    main(*sys.argv[1:4])
