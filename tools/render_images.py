#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Writes the program's pictures as SVG sources (resources/images/src) and renders
them to the PNG files the resource file embeds (resources/images).

All artwork is drawn here from simple shapes. Pictures that carry words are made once
per language from the texts below. Rendering uses Qt's own SVG renderer through the
small tools/svg2png.cpp, compiled on the fly with pkg-config.
Run it again after changing a picture: python3 tools/render_images.py
"""
import os
import shutil
import subprocess
import sys
import tempfile

ROOT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "resources", "images")
SRC = os.path.join(ROOT, "src")
BLUE = "#4592dc"
LIGHT = "#c2dcff"
GREY = "#6b7385"
FONT = "DejaVu Sans, Noto Sans CJK JP"


def svg(w, h, body):
    return (f'<svg xmlns="http://www.w3.org/2000/svg" width="{w}" height="{h}" '
            f'viewBox="0 0 {w} {h}">{body}</svg>\n')


def text(x, y, size, content, fill=GREY, weight="normal", anchor="middle"):
    return (f'<text x="{x}" y="{y}" font-family="{FONT}" font-size="{size}" '
            f'font-weight="{weight}" fill="{fill}" text-anchor="{anchor}">{content}</text>')


def folder(x, y, s, fill=BLUE, tab="#2f6fae"):
    """A folder outline scaled to s (drawn in a 48 unit box)."""
    k = s / 48.0
    return (f'<g transform="translate({x},{y}) scale({k})">'
            f'<path d="M4 12 a3 3 0 0 1 3 -3 h12 l4 5 h18 a3 3 0 0 1 3 3 v21 a3 3 0 0 1 -3 3'
            f' h-34 a3 3 0 0 1 -3 -3 z" fill="{tab}"/>'
            f'<path d="M4 18 h40 v18 a3 3 0 0 1 -3 3 h-34 a3 3 0 0 1 -3 -3 z" fill="{fill}"/></g>')


def cloud(x, y, s, fill):
    k = s / 48.0
    return (f'<g transform="translate({x},{y}) scale({k})"><path d="M13 36 a9 9 0 0 1 -1 -18'
            f' a12 12 0 0 1 23 -2 a10 10 0 0 1 1 20 z" fill="{fill}"/></g>')


PICTURES = {
    "button_plus_enable": svg(120, 120,
        f'<circle cx="60" cy="60" r="56" fill="{BLUE}"/><circle cx="60" cy="60" r="50" '
        f'fill="none" stroke="#ffffff" stroke-opacity="0.35" stroke-width="2"/>'
        f'<path d="M60 36 v48 M36 60 h48" stroke="#ffffff" stroke-width="8" '
        f'stroke-linecap="round"/>'),
    "btn_clear": svg(20, 20,
        '<circle cx="10" cy="10" r="8" fill="#9aa3b5"/><path d="M7 7 l6 6 M13 7 l-6 6" '
        'stroke="#ffffff" stroke-width="1.8" stroke-linecap="round"/>'),
    "hideFile": svg(20, 20,
        f'<path d="M2 10 q8 -8 16 0 q-8 8 -16 0 z" fill="none" stroke="{GREY}" stroke-width="1.6"/>'
        f'<circle cx="10" cy="10" r="2.6" fill="{GREY}"/><path d="M4 16 l12 -12" '
        f'stroke="{GREY}" stroke-width="1.6" stroke-linecap="round"/>'),
    "openInFinder": svg(20, 20,
        f'<path d="M2 5 h6 l2 2 h8 v10 h-16 z" fill="none" stroke="{GREY}" stroke-width="1.5" '
        f'stroke-linejoin="round"/><path d="M8 13 l5 -4 M10 9 h3 v3" stroke="{BLUE}" '
        f'stroke-width="1.6" fill="none" stroke-linecap="round"/>'),
    "local": svg(20, 20,
        f'<rect x="2" y="3" width="16" height="11" rx="1.5" fill="none" stroke="{GREY}" '
        f'stroke-width="1.6"/><path d="M7 17 h6 M10 14 v3" stroke="{GREY}" stroke-width="1.6" '
        f'stroke-linecap="round"/>'),
    "folder": svg(48, 48, folder(0, 0, 48)),
    "cloudfolder": svg(48, 48, folder(0, 0, 48) + cloud(14, 16, 22, "#ffffff")),
    "cloudfolder128": svg(128, 128, folder(0, 0, 128) + cloud(38, 44, 56, "#ffffff")),
    "scan_rotate": svg(160, 160,
        '<defs><linearGradient id="sweep" x1="0" y1="0" x2="1" y2="1">'
        f'<stop offset="0" stop-color="{BLUE}" stop-opacity="0.9"/>'
        f'<stop offset="1" stop-color="{BLUE}" stop-opacity="0"/></linearGradient></defs>'
        '<path d="M80 80 L80 12 A68 68 0 0 1 148 80 Z" fill="url(#sweep)"/>'
        f'<circle cx="80" cy="80" r="6" fill="{BLUE}"/>'),
    "noduplicatesfound_ring_bg": svg(220, 220,
        f'<circle cx="110" cy="110" r="96" fill="none" stroke="{LIGHT}" stroke-width="14"/>'
        f'<circle cx="110" cy="110" r="72" fill="{BLUE}" fill-opacity="0.12"/>'
        f'<path d="M78 112 l22 22 l44 -46" fill="none" stroke="{BLUE}" stroke-width="12" '
        f'stroke-linecap="round" stroke-linejoin="round"/>'),
    # The "nothing found" ring turned warning: no root of the scan could be read.
    "unreadable_ring_bg": svg(220, 220,
        '<circle cx="110" cy="110" r="96" fill="none" stroke="#f6d9a0" stroke-width="14"/>'
        '<circle cx="110" cy="110" r="72" fill="#e8a317" fill-opacity="0.14"/>'
        '<path d="M110 66 v52" stroke="#c27c00" stroke-width="14" stroke-linecap="round"/>'
        '<circle cx="110" cy="148" r="9" fill="#c27c00"/>'),
    "logo": svg(28, 28,
        f'<rect x="1" y="1" width="26" height="26" rx="7" fill="{BLUE}"/>'
        '<rect x="6" y="7" width="10" height="12" rx="2" fill="#ffffff" fill-opacity="0.6"/>'
        '<rect x="11" y="10" width="10" height="12" rx="2" fill="#ffffff"/>'),
    "btn_set": svg(20, 20,
        f'<circle cx="10" cy="10" r="6" fill="none" stroke="{GREY}" stroke-width="2.5" '
        f'stroke-dasharray="3 1.7"/><circle cx="10" cy="10" r="2.5" fill="none" '
        f'stroke="{GREY}" stroke-width="1.5"/>'),
    "btn_menu": svg(20, 20,
        f'<path d="M4 6 h12 M4 10 h12 M4 14 h12" stroke="{GREY}" stroke-width="1.8" '
        f'stroke-linecap="round"/>'),
    "btn_minimize": svg(20, 20,
        f'<path d="M4 10 h12" stroke="{GREY}" stroke-width="1.8" stroke-linecap="round"/>'),
    "btn_close": svg(20, 20,
        f'<path d="M5 5 l10 10 M15 5 l-10 10" stroke="{GREY}" stroke-width="1.8" '
        f'stroke-linecap="round"/>'),
    "btn_pre": svg(20, 20,
        f'<path d="M12 4 l-6 6 l6 6" fill="none" stroke="{GREY}" stroke-width="2" '
        f'stroke-linecap="round" stroke-linejoin="round"/>'),
    "btn_next": svg(20, 20,
        f'<path d="M8 4 l6 6 l-6 6" fill="none" stroke="{GREY}" stroke-width="2" '
        f'stroke-linecap="round" stroke-linejoin="round"/>'),
}

# Cloud services: a coloured cloud with a short mark, at menu size and at 100 px.
CLOUDS = {
    "googledrive": ("#1fa463", "GD"),
    "onedrive": ("#0f6cbd", "OD"),
    "google_photos": ("#e8a317", "GP"),
    "dropbox": ("#3d7bf2", "DB"),
}

# Texts inside pictures, one set per language code ("" is English).
TEXTS = {
    "": ("Drag and drop folders here", "or click the + button to choose them",
         "Drop more folders here", "No duplicate files found"),
    "fr": ("Glissez et déposez des dossiers ici", "ou cliquez sur + pour les choisir",
           "Déposez d'autres dossiers ici", "Aucun fichier en double trouvé"),
    "pt": ("Arraste e solte pastas aqui", "ou clique em + para escolhê-las",
           "Solte mais pastas aqui", "Nenhum ficheiro duplicado encontrado"),
    "it": ("Trascina qui le cartelle", "oppure fai clic su + per sceglierle",
           "Rilascia qui altre cartelle", "Nessun file duplicato trovato"),
    "de": ("Ordner hierher ziehen und ablegen", "oder auf + klicken, um sie auszuwählen",
           "Weitere Ordner hier ablegen", "Keine doppelten Dateien gefunden"),
    "es": ("Arrastre y suelte carpetas aquí", "o haga clic en + para elegirlas",
           "Suelte más carpetas aquí", "No se encontraron archivos duplicados"),
    "ja": ("ここにフォルダーをドラッグ＆ドロップ", "または + ボタンをクリックして選択",
           "さらにフォルダーをここにドロップ", "重複ファイルは見つかりませんでした"),
}


def language_pictures():
    out = {}
    for code, (drag, click, more, none) in TEXTS.items():
        suffix = f"_{code}" if code else ""
        out["noSelection_bg" + suffix] = svg(560, 300,
            f'<rect x="3" y="3" width="554" height="294" rx="18" fill="#ffffff" '
            f'stroke="{LIGHT}" stroke-width="3" stroke-dasharray="12 8"/>'
            + folder(232, 50, 96) + cloud(300, 106, 40, LIGHT)
            + text(280, 206, 22, drag, fill="#1f2430", weight="bold")
            + text(280, 240, 16, click))
        out["noSelection_LiteBG" + suffix] = svg(400, 40,
            f'<rect x="1" y="1" width="398" height="38" rx="10" fill="#ffffff" stroke="{LIGHT}" '
            f'stroke-width="2" stroke-dasharray="6 4"/>' + text(200, 26, 15, more))
        out["noduplicatesfound_bg" + suffix] = svg(480, 48,
            text(240, 32, 24, none, fill="#1f2430", weight="bold"))
    return out


def main():
    os.makedirs(SRC, exist_ok=True)
    pictures = dict(PICTURES)
    for name, (colour, mark) in CLOUDS.items():
        body = cloud(0, 0, 48, colour) + text(24, 33, 11, mark, fill="#ffffff", weight="bold")
        pictures[name] = svg(20, 20, f'<g transform="scale({20/48})">{body}</g>')
        big = "google_photo100" if name == "google_photos" else name + "100"
        pictures[big] = svg(100, 100, f'<g transform="scale({100/48})">{body}</g>')
    pictures.update(language_pictures())
    pairs = []
    for name, source in sorted(pictures.items()):
        svg_path = os.path.join(SRC, name + ".svg")
        with open(svg_path, "w", encoding="utf-8") as f:
            f.write(source)
        pairs += [svg_path, os.path.join(ROOT, name + ".png")]
    work = tempfile.mkdtemp()
    try:
        tool = os.path.join(work, "svg2png")
        flags = subprocess.run(["pkg-config", "--cflags", "--libs", "Qt6Svg", "Qt6Gui"],
                               check=True, capture_output=True, text=True).stdout.split()
        subprocess.run(["g++", "-std=c++17", "-fPIC",
                        os.path.join(os.path.dirname(os.path.abspath(__file__)), "svg2png.cpp"),
                        "-o", tool] + flags, check=True)
        env = dict(os.environ, QT_QPA_PLATFORM="offscreen")
        subprocess.run([tool] + pairs, check=True, env=env)
    finally:
        shutil.rmtree(work)
    # The check mark stays a vector picture; the style sheet scales it.
    with open(os.path.join(ROOT, "check.svg"), "w", encoding="utf-8") as f:
        f.write(svg(14, 14, '<path d="M3 7.5 l2.8 2.8 l5.2 -6" fill="none" stroke="#ffffff" '
                            'stroke-width="2" stroke-linecap="round" stroke-linejoin="round"/>'))
    print(f"{len(pictures) + 1} pictures written to {ROOT}", file=sys.stderr)


if __name__ == "__main__":
    main()
