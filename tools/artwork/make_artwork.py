#!/usr/bin/env python3
"""Draws the editor's pictures with ImageMagick's `convert`.

    python3 tools/artwork/make_artwork.py [output-folder]

Writes icon.png (32x32, stumps and a ball) with the same drawing at the icon
theme's sizes and as a Windows .ico under icons/, banner.png (400x100, the banner
that leads to the user guide) and scorecard.png (270x135, a scorecard that leads
to the file format reference). All are PNG, which Qt reads without a plugin.
Everything is drawn from shapes and the DejaVu fonts, so the pictures can be
made again on any machine with ImageMagick 6.
"""
import os
import subprocess
import sys

FONT_BOLD = "DejaVu-Sans-Bold"
FONT = "DejaVu-Sans"
FONT_MONO = "DejaVu-Sans-Mono"

# Same header bytes on every run, so regenerating changes nothing in git.
REPRODUCIBLE = ["-strip", "-define", "png:exclude-chunks=date,time"]


def convert(args, out):
    subprocess.run(["convert", *args, *REPRODUCIBLE, out], check=True)


def icon_drawing():
    # Drawn eight times larger than the 32-pixel icon and scaled down.
    s = 8
    draw = []
    # Three stumps and two bails, in willow cream with a dark outline.
    for x in (7, 13, 19):
        draw += ["-fill", "#f3e2b3", "-stroke", "#5a3d1a", "-strokewidth", str(s // 2),
                 "-draw", f"roundrectangle {x*s},{6*s} {(x+4)*s},{29*s} {s},{s}"]
    draw += ["-fill", "#c98b3c", "-stroke", "#5a3d1a", "-strokewidth", str(s // 2),
             "-draw", f"roundrectangle {6*s},{3*s} {15*s},{6*s} {s},{s}",
             "-draw", f"roundrectangle {15*s},{3*s} {24*s},{6*s} {s},{s}"]
    # The ball in front, red leather with a white seam.
    draw += ["-fill", "#c0181f", "-stroke", "#5e0a0e", "-strokewidth", str(s // 2),
             "-draw", f"circle {22*s},{22*s} {22*s},{13*s}",
             "-fill", "none", "-stroke", "#fbefe6", "-strokewidth", str(s),
             "-draw", f"arc {19*s},{11*s} {41*s},{33*s} 135,225",
             "-stroke", "#f6b4a8", "-strokewidth", str(s // 2),
             "-draw", f"circle {17*s},{18*s} {18*s},{18*s}"]
    return ["-size", f"{32*s}x{32*s}", "xc:none", *draw]


def icon(out):
    # The window's icon, held to a small palette.
    convert([*icon_drawing(), "-filter", "box", "-resize", "32x32", "-colors", "24", "-depth", "8"], out)


# The sizes a desktop's icon theme looks for, and those a Windows .ico holds.
THEME_SIZES = (16, 24, 32, 48, 64, 128, 256)
ICO_SIZES = (16, 24, 32, 48, 256)


def theme_icons(folder):
    for size in THEME_SIZES:
        filter_ = "box" if size <= 32 else "lanczos"
        convert([*icon_drawing(), "-filter", filter_, "-resize", f"{size}x{size}", "-depth", "8"],
                os.path.join(folder, f"{size}.png"))


def windows_icon(out):
    convert([*icon_drawing(), "-define", "icon:auto-resize=" + ",".join(map(str, ICO_SIZES))], out)


def banner(out):
    w, h = 400, 100
    draw = [
        # Outfield grass with mown stripes, and the strip in the middle.
        "-size", f"{w}x{h}", "gradient:#2f7d32-#1b5e20",
        "-fill", "#ffffff14", "-draw", " ".join(
            f"rectangle {x},0 {x+24},{h}" for x in range(0, w, 48)),
        "-fill", "#d8c690", "-draw", f"polygon 18,{h} 54,8 94,8 130,{h}",
        "-fill", "#ffffff", "-draw", "rectangle 42,30 106,32",
        "-draw", "rectangle 30,78 118,80",
    ]
    # Stumps at the far end of the strip, and a ball on its way.
    for x in (67, 73, 79):
        draw += ["-fill", "#f3e2b3", "-stroke", "#5a3d1a", "-strokewidth", "1",
                 "-draw", f"rectangle {x},12 {x+3},30"]
    draw += ["-fill", "#c98b3c", "-draw", "rectangle 66,10 83,12",
             "-fill", "#c0181f", "-stroke", "#5e0a0e", "-draw", "circle 86,62 86,55",
             "-stroke", "#fbefe6", "-fill", "none", "-draw", "arc 80,56 92,68 120,240"]
    # The name and the invitation.
    draw += ["-stroke", "none",
             "-font", FONT_BOLD, "-pointsize", "34", "-fill", "#0d3310",
             "-annotate", "+150+48", "KOLTA", "-fill", "#fff8dc",
             "-annotate", "+148+46", "KOLTA",
             "-font", FONT, "-pointsize", "26", "-fill", "#fff8dc",
             "-annotate", "+272+46", "editor",
             "-font", FONT_BOLD, "-pointsize", "13", "-fill", "#ffd54f",
             "-annotate", "+150+76", "New here? Read the user guide \u25b8",
             "-fill", "none", "-stroke", "#0d3310", "-strokewidth", "2",
             "-draw", f"rectangle 1,1 {w-2},{h-2}"]
    convert([*draw, "-colors", "256", "-depth", "8"], out)


def scorecard(out):
    w, h = 270, 135
    # Invented club and players, only to make the card look filled in.
    rows = [("R. Ashdown", "players.dat", "42"),
            ("K. Venn", "teams.dat", "17"),
            ("T. Marlowe", "editor.dat", "58"),
            ("S. Quill", "21 lines each", "9")]
    draw = ["-size", f"{w}x{h}", "xc:#fbf6e4",
            "-fill", "#1b5e20", "-draw", f"rectangle 0,0 {w},24",
            "-font", FONT_BOLD, "-pointsize", "13", "-fill", "#fff8dc",
            "-annotate", "+10+17", "SCORECARD  \u00b7  the data files",
            "-fill", "none", "-stroke", "#c7b98a", "-strokewidth", "1"]
    for i in range(len(rows) + 1):
        y = 34 + i * 18 + 14
        draw += ["-draw", f"line 8,{y} {w-8},{y}"]
    draw += ["-draw", f"line 104,30 104,{34 + len(rows) * 18 + 14}",
             "-draw", f"line 212,30 212,{34 + len(rows) * 18 + 14}",
             "-stroke", "none", "-font", FONT_MONO, "-pointsize", "11", "-fill", "#2b2b2b"]
    for i, (name, file, runs) in enumerate(rows):
        y = 34 + i * 18 + 10
        draw += ["-annotate", f"+12+{y}", name, "-annotate", f"+110+{y}", file,
                 "-annotate", f"+{246 - 7 * len(runs)}+{y}", runs]
    draw += ["-fill", "#1b5e20", "-draw", f"rectangle 0,{h-30} {w},{h}",
             "-font", FONT_BOLD, "-pointsize", "12", "-fill", "#ffd54f",
             "-annotate", f"+10+{h-11}", "How the files are laid out \u25b8",
             "-fill", "#c0181f", "-stroke", "#5e0a0e",
             "-draw", f"circle {w-20},{h-15} {w-20},{h-23}",
             "-fill", "none", "-stroke", "#fbefe6",
             "-draw", f"arc {w-27},{h-22} {w-13},{h-8} 120,240",
             "-stroke", "#5a3d1a", "-strokewidth", "2",
             "-draw", f"rectangle 1,1 {w-2},{h-2}"]
    convert([*draw, "-colors", "64", "-depth", "8"], out)


def main():
    here = os.path.dirname(os.path.abspath(__file__))
    folder = sys.argv[1] if len(sys.argv) > 1 else os.path.join(here, "..", "..", "assets")
    os.makedirs(folder, exist_ok=True)
    icon(os.path.join(folder, "icon.png"))
    icons = os.path.join(folder, "icons")
    os.makedirs(icons, exist_ok=True)
    theme_icons(icons)
    windows_icon(os.path.join(icons, "kolta-editor.ico"))
    banner(os.path.join(folder, "banner.png"))
    scorecard(os.path.join(folder, "scorecard.png"))


if __name__ == "__main__":
    main()
