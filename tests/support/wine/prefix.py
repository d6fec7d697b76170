"""Makes what Wine takes for a machine, as the tests of windows want it.

prefix.py WINE

Windows lie where they were put, as on Windows, since no window manager is asked; asked where there is none,
Wine would wait two seconds for each window that goes.
"""

import pathlib
import subprocess
import sys

SETTINGS = [("HKCU\\Software\\Wine\\X11 Driver", "Managed", "N")]


def main():
    wine = sys.argv[1]
    for key, name, value in SETTINGS:
        subprocess.run([wine, "reg", "add", key, "/v", name, "/d", value, "/f"], check=True)
    # The settings are written when the server ends.
    server = pathlib.Path(wine).with_name("wineserver")
    subprocess.run([server, "--kill"], check=True)
    subprocess.run([server, "--wait"], check=True)


if __name__ == "__main__":
    main()
