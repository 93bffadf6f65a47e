# SPDX-License-Identifier: GPL-3.0-or-later
"""Somebody who plays by ear: hears what is asked and what may be pressed, and presses it."""
import re

from listener import Fault

CONTROLS = {"push button", "check box", "radio button"}
PLACES = {"dialog", "panel", "alert", "frame"}
FIGHTER = ("Aggression", "Struggle for Survival")


class Question:
    """What is asked just now, as it is heard."""

    def __init__(self, window):
        everything = list(window.all())
        self.squares = [part for part in everything
                        if part.role == "cell" and part.pressable() and part.name.endswith("can be chosen")]
        # Why the others did something can be asked at any time, and answers nothing.
        self.controls = [part for part in everything
                         if part.role in CONTROLS and part.pressable() and part.name != "Why?"]
        self.entries = [part for part in everything
                        if part.role in {"text", "entry"} and part.pressable() and "editable" in part.states]
        self.name = self._asked()
        self.words = [part.name for part in everything if part.role == "label" and part.name]
        self.kind = self._kind()

    def _asked(self):
        """The question: the name of the innermost place with one that the controls stand in. What is asked of who is
        to choose a square is told by the board."""
        if self.squares:
            return self.squares[0].inside.thing.description()
        place = self.controls[0].inside if self.controls else None
        while place is not None and not place.name:
            place = place.inside
        if place is None:
            return ""
        if place.role not in PLACES:
            raise Fault(f"'{place.name}' is a {place.role}: nobody hears that he comes into it")
        return place.name

    def _kind(self):
        if self.squares:
            return "square"
        names = [control.name for control in self.controls]
        if self.find("Go"):
            return "start"
        if self.find("Yes") and self.find("No"):
            return "yes or no"
        if self.find("OK"):
            return "box"
        for title, kind in (("Adapt", "adapting"), ("Buy", "buying"), ("Eat", "meal"), ("Carry", "carrying")):
            if self.name.startswith(title):
                return kind
        if any(name.endswith(("can be picked", ", picked")) for name in names):
            return "victims"
        if any(name.startswith("amoeba ") for name in names):
            return "amoeba"
        if any(name.isdigit() for name in names):
            return "number"
        return "unknown" if names else ""

    def find(self, pattern):
        """The control whose whole name matches."""
        for control in self.controls:
            if re.fullmatch(pattern, control.name):
                return control
        return None

    def entry(self, pattern):
        for entry in self.entries:
            if re.fullmatch(pattern, entry.name):
                return entry
        return None

    def check(self):
        """A listener can tell what is asked and what every control is."""
        nameless = [str(part) for part in self.controls + self.entries if not part.name.strip()]
        if not self.name.strip():
            raise Fault(f"a question without a name\n{self}")
        if nameless:
            raise Fault(f"nameless controls: {nameless}\n{self}")
        if self.kind == "unknown":
            raise Fault(f"nobody can tell what is asked\n{self}")

    def as_heard(self):
        """All that is read out of it; what changes here changes for a listener."""
        parts = self.controls + self.entries + self.squares
        return self.name, self.words, [(part.name, part.text, sorted(part.states)) for part in parts]

    def __str__(self):
        found = ", ".join(str(part) for part in self.controls + self.entries + self.squares) or "nothing"
        return f"asked: '{self.name}' ({self.kind or 'nothing'})\n  words: {self.words}\n  to press: {found}"


class Player:
    """Answers a question by its actions. The same questions get the same answers."""

    def __init__(self):
        self.offers = self.places = self.meals = self.fights = 0
        self.clans = 0  # that play
        self.boxes = []  # what the boxes have told
        self.entered = None  # the meal that has been entered
        self.fighter = False  # it has bought the gene that fighting begins with

    def answer(self, question):
        """Does the next thing and tells what it was."""
        do = getattr(self, "_" + question.kind.replace(" ", "_"))
        return do(question)

    @staticmethod
    def _press(control):
        if control is None:
            raise Fault("what is wanted here cannot be pressed")
        control.thing.act("Press")
        return f"press '{control.name}'"

    def _yes_or_no(self, question):
        self.offers += 1
        return self._press(question.find("No" if self.offers % 3 == 0 else "Yes"))

    def _square(self, question):
        self.places += 1
        return self._press(question.squares[self.places % len(question.squares)])

    def _box(self, question):
        self.boxes.append(question.name)
        return self._press(question.find("OK"))

    def _number(self, question):
        numbers = [control for control in question.controls if control.name.isdigit()]
        highest = max(numbers, key=lambda control: int(control.name))
        self.clans = self.clans or int(highest.name)
        return self._press(highest)

    def _amoeba(self, question):
        return self._press(question.find("amoeba .*") or question.controls[0])

    def _meal(self, question):
        meal = question.find("Meal [0-9]+: .*")
        suggested = question.find("Suggested menu: [0-9]+")
        if self.entered == question.name:
            self.entered = None
            return self._press(question.find("Eat.*"))
        self.entered = question.name
        self.meals += 1
        if meal and self.meals % 3 == 0:
            return self._write_meal(question, meal.name)
        if meal and self.meals % 3 == 1:
            return self._press(meal)
        if suggested:
            return self._press(suggested)
        self.entered = None
        return self._press(question.find("Eat.*") or question.find("Close: .*"))

    @staticmethod
    def _write_meal(question, meal):
        """Types a meal, "Meal 21: 2 blue, 1 red", colour by colour."""
        for amount, colour in re.findall(r"(\d) (\w+)", meal.split(": ", 1)[1]):
            entry = question.entry(f"{colour}: .*")
            if entry is None:
                raise Fault(f"there is nowhere to type how much {colour} is eaten")
            entry.thing.write(amount)
        return f"type {meal}"

    def _carrying(self, question):
        return self._press(question.find("Close: .*"))

    def _buying(self, question):
        """The genes of a fighter first, then whatever there is."""
        boxes = {box.name.split(",")[0]: box for box in question.controls if box.role == "check box"}
        offered = [name for name, box in boxes.items() if "checked" not in box.states]
        fighter = [name for name in FIGHTER if name in offered] or [name for name in offered if self.fighter]
        if fighter:
            self.fighter = self.fighter or fighter[0] == FIGHTER[0]
            boxes[fighter[0]].thing.act("Toggle", "Press")
            return f"tick '{boxes[fighter[0]].name}'"
        return self._press(question.find("Done"))

    def _adapting(self, question):
        suggest = question.find("Suggest")
        if suggest:
            return self._press(suggest)
        return self._press(question.find("Done"))

    def _victims(self, question):
        done = question.find("Done")
        victim = question.find(".* can be picked")
        return self._press(done or victim or question.find("Close: .*"))
