"""Checks the AT-SPI harness on a small window: a combo box found through its
label, a spin box set through its value, a button and a menu item pressed
through their actions."""

import sys

import pyatspi

import atspi_driver as d


def main(probe):
    app = d.App([probe])
    try:
        d.choose_in_combo(d.find_combo(app, "Mode", ["Backward", "Forward"]), "Forward")
        d.set_number(app.find(pyatspi.ROLE_SPIN_BUTTON, "Hours"), 1)
        d.press(app.find(pyatspi.ROLE_PUSH_BUTTON, "Apply"))
        line = app.process.stdout.readline().strip()
        if line != "Forward 1":
            raise d.DriverError(f"the window saw '{line}', expected 'Forward 1'")
        d.run_menu(app, "File", "Quit")
        if app.wait_exit() != 0:
            raise d.DriverError("the probe did not quit cleanly")
    finally:
        app.kill()
    print("probe driven through AT-SPI: OK")


if __name__ == "__main__":
    main(sys.argv[1])
