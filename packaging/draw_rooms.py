#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Draws docs/architecture.svg from the sources: the rooms, and which room includes which.

An arrow that follows from two others is left out. With --check nothing is written: the drawing must be the one
that the sources give, and every arrow points down.
"""
import re
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
DRAWING = ROOT / "docs" / "architecture.svg"
WIDTH, BOX, HIGH, STEP, TOP = 1120, 210, 74, 116, 74

# A room: row from the bottom, left edge, colour, and what lives there in two lines.
ROOMS = {
    "ui/app": (7, 300, "#f7e3b5", "plasmos, plasmos-shot, and", "a person made of code"),
    "ui/window": (6, 290, "#d7ecd9", "the window and its menus;", "what the rules tell and ask"),
    "ui/options": (5, 420, "#d7ecd9", "the preferences", ""),
    "sim": (6, 860, "#f7e3b5", "plasmos-sim: many games,", "robot person, journal"),
    "record": (5, 660, "#d5e5f5", "a game's inputs, and", "the game played again"),
    "ui/strip": (4, 290, "#d7ecd9", "the cards beside the board:", "clans, log, message line"),
    "flow": (4, 620, "#d5e5f5", "start, new game, the turns,", "scoring"),
    "ai": (4, 860, "#d5e5f5", "what a computer clan", "decides"),
    "ui/board": (3, 40, "#d7ecd9", "the puddle, the track,", "tool tips"),
    "ui/dialogs": (3, 290, "#d7ecd9", "the dialogs of the rules", ""),
    "rules": (3, 620, "#d5e5f5", "one unit per phase; asks", "persons and computer clans"),
    "ui/look": (2, 160, "#d7ecd9", "colours, cards, shapes", ""),
    "questions": (2, 620, "#d5e5f5", "what is asked, what may be", "answered, answers as values"),
    "model": (1, 400, "#d5e5f5", "the state, dice, genes; who", "shows it, who listens"),
    "files": (0, 400, "#d5e5f5", "texts, files, settings,", "the platform"),
}


def includes(room):
    seen = set()
    for source in sorted((ROOT / room).glob("*.h")) + sorted((ROOT / room).glob("*.cpp")):
        for found in re.findall(r'#include "((?:ui/)?[a-z]+)/[a-z_0-9]+\.h"', source.read_text(encoding="utf-8")):
            if found != room:
                seen.add(found)
    return seen


def below(room, direct):
    found, waiting = set(), list(direct[room])
    while waiting:
        one = waiting.pop()
        if one not in found:
            found.add(one)
            waiting += direct[one]
    return found


def arrows():
    """Pairs of rooms; every one of them is a real include."""
    direct = {room: includes(room) for room in ROOMS}
    strangers = set().union(*direct.values()) - set(ROOMS)
    if strangers:
        sys.exit(f"rooms that are not drawn: {', '.join(sorted(strangers))}; add them to {Path(__file__).name}")
    pairs = []
    for room, seen in direct.items():
        for other in sorted(seen):
            if ROOMS[other][0] >= ROOMS[room][0]:
                sys.exit(f"{room} includes {other}, which does not lie below it")
            if not any(other in below(between, direct) for between in seen - {other}):
                pairs.append((room, other))
    return pairs


def corner(room):
    row, left = ROOMS[room][:2]
    return left, TOP + (7 - row) * STEP


def draw():
    height = TOP + 8 * STEP + 10
    lines = [
        '<?xml version="1.0" encoding="UTF-8"?>',
        "<!-- SPDX-License-Identifier: GPL-3.0-or-later -->",
        f'<svg xmlns="http://www.w3.org/2000/svg" width="{WIDTH}" height="{height}" viewBox="0 0 {WIDTH} {height}"',
        '     font-family="DejaVu Sans, Verdana, sans-serif">',
        '  <defs><marker id="tip" viewBox="0 0 10 10" refX="9" refY="5" markerWidth="8" markerHeight="8" orient="auto">',
        '    <path d="M0 0 L10 5 L0 10 z" fill="#33414d"/></marker></defs>',
        f'  <rect width="{WIDTH}" height="{height}" fill="#ffffff"/>',
        '  <text x="40" y="44" font-size="23" font-weight="bold" fill="#1d2b36">The rooms of Plasmos</text>',
        '  <g font-size="13" fill="#33414d"><text x="780" y="40">An arrow: includes headers of. What follows</text>',
        '    <text x="780" y="58">from two arrows is not drawn.</text></g>',
    ]
    for room, other in arrows():
        (x, y), (to_x, to_y) = corner(room), corner(other)
        lines.append(
            f'  <path d="M{x + BOX // 2} {y + HIGH} L{to_x + BOX // 2} {to_y - 2}" stroke="#33414d" '
            'stroke-width="1.6" fill="none" marker-end="url(#tip)"/>'
        )
    for room, (_, _, colour, first, second) in ROOMS.items():
        x, y = corner(room)
        lines += [
            f'  <rect x="{x}" y="{y}" width="{BOX}" height="{HIGH}" rx="8" fill="{colour}" stroke="#33414d" '
            'stroke-width="1.4"/>',
            f'  <text x="{x + 12}" y="{y + 24}" font-size="16" font-weight="bold" fill="#1d2b36">{room}/</text>',
            f'  <text x="{x + 12}" y="{y + 45}" font-size="12.5" fill="#33414d">{first}</text>',
            f'  <text x="{x + 12}" y="{y + 62}" font-size="12.5" fill="#33414d">{second}</text>',
        ]
    legend = (("#f7e3b5", "programs"), ("#d7ecd9", "the window (Qt)"), ("#d5e5f5", "the core (standard library only)"))
    for place, (colour, text) in enumerate(legend):
        y = TOP + 6 * STEP + 40 + place * 26
        lines.append(f'  <rect x="780" y="{y}" width="18" height="18" rx="4" fill="{colour}" stroke="#33414d"/>')
        lines.append(f'  <text x="808" y="{y + 14}" font-size="13" fill="#33414d">{text}</text>')
    return "\n".join(lines + ["</svg>"]) + "\n"


if __name__ == "__main__":
    drawing = draw()
    if sys.argv[1:] == ["--check"]:
        if DRAWING.read_text(encoding="utf-8") != drawing:
            sys.exit(f"docs/architecture.svg is not what the sources give; run packaging/{Path(__file__).name}")
    elif sys.argv[1:]:
        sys.exit(f"usage: packaging/{Path(__file__).name} [--check]")
    else:
        DRAWING.write_text(drawing, encoding="utf-8")
