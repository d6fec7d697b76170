"""Makes what Wine takes for a machine, as the tests of windows want it.

prefix.py WINE

Windows lie where they were put, as on Windows, since no window manager is asked; asked where there is none,
Wine would wait two seconds for each window that goes. Wine's own faces stand for those of Windows, and free
ones of the same widths for the rest.
"""

import os
import pathlib
import shutil
import subprocess
import sys

OWN_FACES = pathlib.Path("/usr/share/wine/fonts")
REPLACED = {"Arial": "Liberation Sans", "Courier New": "Liberation Mono",
            "Times New Roman": "Liberation Serif", "Segoe UI": "Tahoma"}
SETTINGS = [("X11 Driver", "Managed", "N"),
            *(("Fonts\\Replacements", name, face) for name, face in REPLACED.items())]


def main():
    wine = sys.argv[1]
    for key, name, value in SETTINGS:
        subprocess.run([wine, "reg", "add", "HKCU\\Software\\Wine\\" + key, "/v", name, "/d", value,
                        "/f"], check=True)
    faces = pathlib.Path(os.environ["WINEPREFIX"], "drive_c", "windows", "Fonts")
    for face in OWN_FACES.glob("*.ttf"):
        shutil.copy(face, faces)
    # The settings are written when the server ends.
    server = pathlib.Path(wine).with_name("wineserver")
    subprocess.run([server, "--kill"], check=True)
    subprocess.run([server, "--wait"], check=True)


if __name__ == "__main__":
    main()
