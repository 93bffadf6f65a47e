#!/usr/bin/python3 -B
# SPDX-License-Identifier: GPL-3.0-or-later
"""A whole game by ear: the program is started as a player starts it, and played over the accessibility bus alone.

    xvfb-run -a dbus-run-session -- tests/ui/ear/accessible_game.py [-v] build/release/plasmos

Nothing is known here of the program but what a listener is told: no pointer, no keys, no names of the code.
"""
import argparse
import collections
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import time

from listener import Fault, Gone, listen, open_bus, wait_for
from player import Player, Question

REPLAY = "2024"
# What this game brings up; a question of each kind must have been heard and answered.
MUST_BE_ASKED = {"number", "square", "yes or no", "meal", "buying", "adapting", "victims", "box"}
STILL_FOR = 20  # seconds without anything new are too many


def own_environment(home):
    """A home of its own, and nothing of the caller's but the way to the screen and to the session's bus."""
    kept = ("PATH", "DISPLAY", "XAUTHORITY", "DBUS_SESSION_BUS_ADDRESS", "LANG")
    env = {name: os.environ[name] for name in kept if name in os.environ}
    for name, folder in (("HOME", "home"), ("XDG_CONFIG_HOME", "config"), ("XDG_DATA_HOME", "share"),
                         ("XDG_CACHE_HOME", "cache"), ("XDG_RUNTIME_DIR", "run"), ("PLASMOS_DATA", "data")):
        env[name] = str(pathlib.Path(home, folder))
        pathlib.Path(env[name]).mkdir(mode=0o700)
    return env | {"QT_QPA_PLATFORM": "xcb", "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}


class Game:
    """A game of the program, heard and played."""

    def __init__(self, program, bus, say):
        self.program, self.bus, self.say = program, bus, say
        self.player = Player()
        self.asked = collections.Counter()
        self.turns = []
        self.prodded = 0
        self.window = self.application().children()[0]

    def alive(self):
        if self.program.poll() is not None:
            raise Fault(f"the program is gone, with exit code {self.program.returncode}")

    def application(self):
        def found():
            self.alive()
            return [one for one in self.bus.applications() if one.name() == "Plasmos" and one.children()]
        applications = wait_for(found, 20, 0.1)
        if not applications:
            raise Fault("the program does not come to the bus")
        return applications[0]

    def hear(self, *left_out):
        """The window as it is heard now."""
        def heard():
            self.alive()
            try:
                return listen(self.window, lambda part: part.role not in {"menu bar", *left_out})
            except Gone:
                return None
        window = wait_for(heard, 5)
        if window is None:
            raise Fault("the window does not stand still")
        return window

    def question(self):
        """What is asked: the dialogs and cards first, and the board's squares where nothing else can be pressed."""
        def asked():
            try:
                now = Question(self.hear("graphic"))
                return now if now.kind else Question(self.hear("cell"))
            except Gone:
                return None
        return wait_for(asked, 5)

    def settled(self):
        """The question as soon as it has been heard twice alike."""
        before, now = None, self.question()
        while before is None or before.as_heard() != now.as_heard():
            before, now = now, self.question()
        return now

    def menu(self, *path):
        """Presses an item of the menus by the names that lead there."""
        level = next(child for child in self.window.children() if child.role() == "menu bar").children()
        for place, name in enumerate(path):
            item = next((one for one in level if one.name() == name), None)
            if item is None:
                raise Fault(f"there is no menu item {' > '.join(path)}")
            if place + 1 == len(path):
                item.act("Press")
            else:
                level = item.children()[0].children()

    def prod(self, thing):
        """Every object in a thing is asked for everything it may be asked."""
        self.prodded += 1
        try:
            faults = thing.prod()
            for part in thing.children():
                self.prod(part)
        except Gone:
            return   # it went while it was asked
        if faults:
            raise Fault("; ".join(faults))

    def start(self):
        question = self.settled()
        go, number = question.find("Go"), question.entry("Replay number")
        if go is None or number is None:
            raise Fault(f"no 'Go' or no 'Replay number'\n{question}")
        number.thing.write(REPLAY)
        if number.thing.text() != REPLAY:
            raise Fault(f"the replay number reads '{number.thing.text()}'")
        question = self.settled()
        go.thing.act("Press")
        self.wait_for_change(question)

    def wait_for_change(self, before):
        old = before.as_heard()
        wait_for(lambda: self.question().as_heard() != old, 3)

    def play(self):
        """From the first question to the start card that tells how the game came out."""
        last, since = None, time.monotonic()
        while True:
            question = self.settled()
            if question.kind == "start" and self.asked:
                return question
            if last is None or question.as_heard() != last.as_heard():
                last, since = question, time.monotonic()
            elif time.monotonic() - since > STILL_FOR:
                raise Fault(f"nothing new for {STILL_FOR} seconds\n{question}")
            if question.kind and question.kind != "start":
                self.answer(question)

    def answer(self, question):
        question.check()
        self.check_table(question.words)
        if self.asked[question.kind] == 0:
            self.prod(self.application())
        try:
            did = self.player.answer(question)
        except Gone:
            return   # it was taken away meanwhile
        except Fault as fault:
            raise Fault(f"{fault}\n{question}") from fault
        self.asked[question.kind] += 1
        self.say(f"{question.kind}: {question.name!r} -> {did}")
        self.wait_for_change(question)

    def check_table(self, names):
        """Turn, drift and UV level are heard at every question of a game that has begun, the scores in every turn."""
        turn = [int(found[1]) for name in names if (found := re.fullmatch(r"Turn (\d+) of 10", name))]
        if not turn:
            if self.turns:
                raise Fault(f"nobody tells the turn: {names}")
            return
        for wanted in (r"UV level \d+", r"Drift \S.*"):
            if not any(re.fullmatch(wanted, name) for name in names):
                raise Fault(f"nobody tells '{wanted}': {names}")
        if turn != self.turns[-1:]:
            self.turns += turn
            scores = self.scores()
            if len(scores) != self.player.clans:
                raise Fault(f"{self.player.clans} clans play, and these scores are told: {scores}")

    def scores(self):
        """The clans' scores, by their names, as the score track tells them."""
        track = next((part for part in self.hear("cell").all() if part.name == "Score track"), None)
        if track is None:
            raise Fault("there is no 'Score track'")
        found = (re.fullmatch(r"(.+): score (\d+)", part.name) for part in track.all())
        return {one[1]: int(one[2]) for one in found if one}

    def check_end(self, end):
        """The start card names the winner, who has the most points; every turn has been told."""
        scores = self.scores()
        winner = end.name.removesuffix(" wins!")
        if scores.get(winner) != max(scores.values()):
            raise Fault(f"'{end.name}' with {scores}")
        if not any(f"{winner} wins with {scores[winner]} points" in word for word in end.words):
            raise Fault(f"how it came out is not told\n{end}")
        if f"Clan {winner} wins!" not in self.player.boxes:
            raise Fault(f"no box has told that {winner} wins: {self.player.boxes}")
        if self.turns != list(range(1, 11)):
            raise Fault(f"the turns were told as {self.turns}")
        missing = MUST_BE_ASKED - self.asked.keys()
        if missing:
            raise Fault(f"nothing was asked of the kinds {sorted(missing)}, only {dict(self.asked)}")

    def check_log(self):
        log = next((part for part in self.hear("cell").all() if part.name == "Game log"), None)
        if log is None or len(log.thing.text().splitlines()) < 100:
            raise Fault("the game's log cannot be read")

    def quit(self):
        self.menu("File", "Quit")
        if wait_for(lambda: self.program.poll() is not None, 10) and self.program.returncode == 0:
            return
        raise Fault(f"File > Quit: exit code {self.program.poll()}")


def play(program, say):
    with tempfile.TemporaryDirectory() as home:
        env = own_environment(home)
        bus = open_bus()
        process = subprocess.Popen([program], env=env)
        try:
            game = Game(process, bus, say)
            game.menu("View", "Pace", "Instant")
            game.start()
            game.check_end(game.play())
            game.check_log()
            game.quit()
        finally:
            if process.poll() is None:
                process.kill()
                process.wait()
    return game


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("program")
    parser.add_argument("-v", action="store_true", help="tell every question and answer")
    options = parser.parse_args()
    start = time.monotonic()
    try:
        game = play(options.program, print if options.v else lambda line: None)
    except Fault as fault:
        print(f"By ear the game cannot be played: {fault}", file=sys.stderr)
        return 1
    asked = ", ".join(f"{count} {kind}" for kind, count in game.asked.most_common())
    print(f"A game by ear in {time.monotonic() - start:.0f} s: {asked}; {game.prodded} objects asked for everything")
    return 0


if __name__ == "__main__":
    sys.exit(main())
