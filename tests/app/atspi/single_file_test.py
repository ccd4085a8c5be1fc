"""End to end through AT-SPI: lumidate is handed one photo and shows it in a
single-file window. The hour of its DateTimeOriginal is set through the
accessible field "Hour" inside the picker group "Date Time Original", the
photo is saved with the Save button and the program quits. On disk only
the two hour digits of DateTimeOriginal have changed.

usage: single_file_test.py LUMIDATE PHOTO
"""

import os
import shutil
import sys
import tempfile
import time

import pyatspi

import atspi_driver as d
import exif_dates

FIELD_ROLES = (pyatspi.ROLE_SPIN_BUTTON, pyatspi.ROLE_TEXT, pyatspi.ROLE_ENTRY)
HOUR_AT = 11  # "yyyy:MM:dd HH:mm:ss"


def picker_field(app, window, group_name, field_name):
    """The field named field_name inside the accessible group group_name."""
    def probe():
        group = pyatspi.findDescendant(window, lambda n: d.plain(n.name) == group_name
                                       and n.getRole() not in FIELD_ROLES + (pyatspi.ROLE_LABEL,))
        if group is None:
            return None
        return pyatspi.findDescendant(group, lambda n: n.getRole() in FIELD_ROLES
                                      and d.plain(n.name) == field_name)
    return d.wait_until(f"field '{field_name}' in '{group_name}'", probe)


def set_field(field, text):
    """Types text into a picker field: through its value when it has one,
    else by replacing its text."""
    try:
        field.queryValue().currentValue = float(text)
    except NotImplementedError:
        field.queryEditableText().setTextContents(text)
    d.wait_until(f"'{field.name}' to read {text}",
                 lambda: field.queryText().getText(0, -1).strip() == text)


def drive(app, hour):
    window = app.frame(".jpg")
    set_field(picker_field(app, window, "Date Time Original", "Hour"), hour)
    save = app.find(pyatspi.ROLE_PUSH_BUTTON, "Save", within=window)
    d.press(save)
    # Save is enabled while the photo is edited: disabled again, the save is over.
    d.wait_until("the save to finish", lambda: not d.is_enabled(save), timeout=30)
    d.quit_app(app)


def main(lumidate, source):
    started = time.monotonic()
    work = tempfile.mkdtemp(prefix="lumidate-atspi-")
    try:
        photo = os.path.join(work, os.path.basename(source))
        shutil.copyfile(source, photo)
        before = open(photo, "rb").read()
        at = exif_dates.date_positions(before)[exif_dates.TAG_ORIGINAL] + HOUR_AT
        hour = "%02d" % ((int(before[at:at + 2]) + 5) % 24)
        app = d.start_private([lumidate, photo], work)
        try:
            drive(app, hour)
        finally:
            app.kill()
        after = open(photo, "rb").read()
        expected = before[:at] + hour.encode("ascii") + before[at + 2:]
        if after != expected:
            first = next((i for i in range(min(len(after), len(expected))) if after[i] != expected[i]),
                         min(len(after), len(expected)))
            raise d.DriverError(f"the saved photo differs from the expected bytes at byte {first}")
    finally:
        shutil.rmtree(work, ignore_errors=True)
    print(f"one photo's DateTimeOriginal hour set to {hour} and saved through AT-SPI: OK "
          f"({time.monotonic() - started:.1f} s)")


if __name__ == "__main__":
    main(*sys.argv[1:3])
