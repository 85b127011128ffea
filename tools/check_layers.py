#!/usr/bin/env python3
"""Checks that every #include under src/ points to the including folder or to a lower
layer, as the README's layout table orders them. Exits 1 and lists each include that runs
upward or across to a sibling, and each folder of src/ the table does not name."""
import pathlib
import re
import sys

root = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else '.')
row = re.compile(r'^\|\s*(\d+)\s*\|\s*`src/([a-z]+)`\s*\|')
layers = {}
for line in (root / 'README.md').read_text(encoding='utf-8').splitlines():
    match = row.match(line)
    if match:
        layers[match.group(2)] = int(match.group(1))
if not layers:
    sys.exit('no layer table found in README.md')

problems = []
src = root / 'src'
for folder in sorted(p.name for p in src.iterdir() if p.is_dir()):
    if folder not in layers:
        problems.append(f'src/{folder}: not in the README layout table')

include = re.compile(r'^\s*#\s*include\s*"([a-z]+)/')
for path in sorted(src.rglob('*')):
    if path.suffix not in ('.h', '.cpp', '.ui') or not path.is_file():
        continue
    folder = path.relative_to(src).parts[0]
    if folder not in layers:
        continue
    text = path.read_text(encoding='utf-8', errors='replace')
    targets = [(n, m.group(1)) for n, line in enumerate(text.splitlines(), 1)
               if (m := include.match(line))]
    # Forms name their custom widgets' headers in <header> elements.
    targets += [(n, m.group(1)) for n, line in enumerate(text.splitlines(), 1)
                if (m := re.search(r'<header>([a-z]+)/', line))]
    for number, target in targets:
        if target == folder or target not in layers:
            continue
        if layers[target] <= layers[folder]:
            kind = 'across to a sibling' if layers[target] == layers[folder] else 'upward'
            problems.append(f'{path.relative_to(root)}:{number}: includes {target}/, '
                            f'{kind} (layer {layers[folder]} -> {layers[target]})')

for problem in problems:
    print(problem)
sys.exit(1 if problems else 0)
