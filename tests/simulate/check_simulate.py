#!/usr/bin/env python3
"""Checks the program `simulate` from outside, with a model of the rules of its own.

usage: check_simulate.py SIMULATE [--games N]

Replays N games of each board size with fleets that the program builds and N / 2 with
fleets built here, tests the frequencies of all random choices, compares press sequences
of the set-up and feeds broken input. The last line is 'N passed, N failed'; the exit
status is 1 if anything failed.

A frequency fails below a probability of 1e-9. There are at most 28 tests of them, and each
size counts every cell and every direction, again to 1e-9 for all of a size together, so a
right program fails in less than one run in a million.
"""
import argparse
import json
import math
import random
import re
import subprocess
import sys
import tempfile
from collections import Counter, defaultdict
from pathlib import Path

FIELDS = {1: (10, 8), 2: (15, 12), 3: (20, 16)}
LENGTHS = {
    1: (4, 3, 3, 2, 2, 1, 1, 1),
    2: (5, 4, 4, 3, 3, 2, 2, 2, 1, 1, 1, 1),
    3: (6, 5, 5, 4, 4, 3, 3, 2, 2, 2, 1, 1, 1, 1),
}
STEPS = ((0, -1), (1, 0), (0, 1), (-1, 0))  # up, right, down, left
DIRECTIONS = ("up", "right", "down", "left")
CORNERS = ((1, -1), (1, 1), (-1, 1), (-1, -1))
BLOCK_WIDTH, BLOCK_HEIGHT = 5, 4
REPEATED, HIT, SUNK = 1, 2, 3
HUMAN, COMPUTER = 1, 2
LEAST_PROBABILITY = 1e-9
RUN_SECONDS = 300


class Wrong(Exception):
    """Something that the rules do not allow."""


class Sea:
    """The geometry of one board size. A cell is a pair (x, y), both from 1."""

    def __init__(self, size):
        self.size = size
        self.width, self.height = FIELDS[size]
        self.lengths = LENGTHS[size]
        self.cells = [(x, y) for y in range(1, self.height + 1) for x in range(1, self.width + 1)]
        self.rim = {(x, y) for x, y in self.cells if x in (1, self.width) or y in (1, self.height)}
        self.rim_first = sorted(self.cells, key=lambda cell: cell not in self.rim)
        self.edge = {cell: self.beside(cell, STEPS) for cell in self.cells}
        self.around = {cell: self.beside(cell, STEPS + CORNERS) for cell in self.cells}
        self.boxes = {cell: self.open_boxes(cell) for cell in self.cells}
        self.blocks = self.cut_blocks()
        self.first_cells = None  # of the first boat, worked out once
        self.firsts, self.steps = Ledger(), Ledger()  # of the computer's boats

    def has(self, cell):
        return 1 <= cell[0] <= self.width and 1 <= cell[1] <= self.height

    def beside(self, cell, offsets):
        near = [(cell[0] + dx, cell[1] + dy) for dx, dy in offsets]
        return [other for other in near if self.has(other)]

    def open_boxes(self, cell):
        """The steps from a cell whose six cells ahead lie on the field: number, target, box."""
        x, y = cell
        found = []
        for number, (dx, dy) in enumerate(STEPS):
            box = {(x + dx * depth + dy * side, y + dy * depth + dx * side)
                   for depth in (1, 2) for side in (-1, 0, 1)}
            if all(map(self.has, box)):
                found.append((number, (x + dx, y + dy), box))
        return found

    def cut_blocks(self):
        blocks = defaultdict(list)
        for x, y in self.cells:
            blocks[(y - 1) // BLOCK_HEIGHT, (x - 1) // BLOCK_WIDTH].append((x, y))
        return [blocks[place] for place in sorted(blocks)]


# ---- the human's set-up

class Setup:
    """The human's fleet while it is being built."""

    def __init__(self, sea):
        self.sea = sea
        self.field = {}
        self.fleet = [[] for _ in sea.lengths]
        self.boat = 0

    def complete(self):
        return self.boat == len(self.fleet)

    def allows(self, cell):
        if self.complete() or not self.sea.has(cell) or cell in self.field:
            return False
        if any(self.field.get(near, self.boat) != self.boat for near in self.sea.around[cell]):
            return False
        if self.fleet[self.boat] and not any(near in self.field for near in self.sea.edge[cell]):
            return False
        x, y = cell
        return not any({(x + dx, y), (x, y + dy), (x + dx, y + dy)} <= self.field.keys()
                       for dx, dy in CORNERS)

    def press(self, cell):
        if not self.allows(cell):
            return False
        self.field[cell] = self.boat
        self.fleet[self.boat].append(cell)
        self.boat += len(self.fleet[self.boat]) == self.sea.lengths[self.boat]
        return True


def check_human_fleet(sea, fleet):
    check_lengths(sea, fleet, "player")
    setup = Setup(sea)
    for number, boat in enumerate(fleet, 1):
        for point, cell in enumerate(boat, 1):
            if not setup.press(cell):
                raise Wrong(f"player's boat {number}: point {point} may not stand on {cell}")


def check_lengths(sea, fleet, owner):
    if [len(boat) for boat in fleet] != list(sea.lengths):
        raise Wrong(f"{owner}: boats of the wrong number or length")


TASTES = {
    "random": lambda sea, boat, cell: 0,
    "straight": lambda sea, boat, cell: max(sum(x == cell[0] for x, y in boat), sum(y == cell[1] for x, y in boat)),
    "bent": lambda sea, boat, cell: len({x for x, y in boat + [cell]}) + len({y for x, y in boat + [cell]}),
    "rim": lambda sea, boat, cell: cell in sea.rim,
}


def build_fleet(sea, taste):
    while True:
        setup = Setup(sea)
        while not setup.complete():
            boat = setup.fleet[setup.boat]
            spots = {near for cell in boat for near in sea.edge[cell]} if boat else sea.cells
            spots = [cell for cell in spots if setup.allows(cell)]
            if not spots:
                break
            setup.press(max(spots, key=lambda cell: (TASTES[taste](sea, boat, cell), random.random())))
        if setup.complete():
            return setup.fleet


# ---- the computer's fleet

def check_computer_fleet(sea, fleet):
    """Free first cells and open boxes keep boats apart, from the rim and from themselves."""
    check_lengths(sea, fleet, "computer")
    taken = set()  # what stood on the field at that time; a dead end had left it before the next step
    for number, boat in enumerate(fleet, 1):
        if not taken.isdisjoint([boat[0], *sea.around[boat[0]]]):
            raise Wrong(f"computer's boat {number} starts at or beside another one")
        taken.add(boat[0])
        for here, there in zip(boat, boat[1:]):
            if there not in (target for _, target in open_steps(sea, taken, here)):
                raise Wrong(f"computer's boat {number}: the step from {here} to {there} was closed")
            taken.add(there)


def open_steps(sea, taken, cell):
    return [(number, target) for number, target, box in sea.boxes[cell] if taken.isdisjoint(box)]


def step_shares(sea, taken, cell):
    """Target -> draws of four that lead there: a closed direction hands on clockwise."""
    ways = open_steps(sea, taken, cell)
    if not ways:
        return {}
    return Counter(min(ways, key=lambda way: (way[0] - drawn) % 4)[1] for drawn in range(4))


def outlook(sea, taken, cell, missing):
    """The chance that a walk gets through from a cell, None for a dead end.

    A walk steps back from a dead end and draws again. It comes back for ever, and the try
    fails, where every way on is a dead end.
    """
    if missing == 0:
        return 1
    shares = step_shares(sea, taken, cell)
    chances = {target: outlook(sea, taken | {target}, target, missing - 1) for target in shares}
    lasting = [target for target in shares if chances[target] is not None]
    if not lasting:
        return 0 if shares else None
    draws = sum(shares[target] for target in lasting)
    return sum(shares[target] * chances[target] for target in lasting) / draws


def tally_computer_fleet(sea, fleet, tally):
    taken = set()
    for boat in fleet:
        if len(boat) <= 2 or not taken:
            weights = first_cells(sea, taken, len(boat))
            tally["first cell"].append(quantile(weights, boat[0]))
            sea.firsts.add(weights, boat[0])
        taken.add(boat[0])
        for missing, here, there in zip(range(len(boat) - 2, -1, -1), boat, boat[1:]):
            tally_step(sea, taken, here, there, missing, tally)
            taken.add(there)


def first_cells(sea, taken, length):
    """Cell -> its weight among the first cells of the boats that got through."""
    if not taken and sea.first_cells:
        return sea.first_cells
    free = [cell for cell in sea.rim_first if cell not in taken and taken.isdisjoint(sea.around[cell])]
    weights = {cell: outlook(sea, taken | {cell}, cell, length - 1) or 0 for cell in free}
    if not taken:
        sea.first_cells = weights
    return weights


def tally_step(sea, taken, here, there, missing, tally):
    """Tallies a step of a boat that got through, so that no step into a dead end is left of its walk."""
    weights = {target: share * (outlook(sea, taken | {target}, target, missing) or 0)
               for target, share in step_shares(sea, taken, here).items()}
    tally["step of a walk"].append(quantile(weights, there))
    direction = {(here[0] + dx, here[1] + dy): name for name, (dx, dy) in zip(DIRECTIONS, STEPS)}
    sea.steps.add({direction[target]: weight for target, weight in weights.items()}, direction[there])
    tally["step of a walk, likeliest first"].append(quantile(sorted_by(weights, weights), there))


# ---- the computer's shots

class Hunter:
    """The computer at the human's fleet: what it knows, and between which cells it may choose."""

    def __init__(self, sea, fleet):
        self.sea = sea
        self.fleet = fleet
        self.boat_at = {cell: number for number, boat in enumerate(fleet) for cell in boat}
        self.unknown = set(sea.cells)
        self.known_beside = dict.fromkeys(sea.cells, 0)
        self.hits = set()
        self.sunk = set()
        self.target = None

    def won(self):
        return len(self.sunk) == len(self.fleet)

    def learn(self, cell):
        if cell in self.unknown:
            self.unknown.remove(cell)
            for near in self.sea.edge[cell]:
                self.known_beside[near] += 1

    def shoot(self, cell):
        self.learn(cell)
        number = self.boat_at.get(cell)
        if number is None:
            return 0
        self.hits.add(cell)
        if not self.hits.issuperset(self.fleet[number]):
            self.target = number
            return HIT
        self.target = None
        self.sunk.add(number)
        for part in self.fleet[number]:
            for near in self.sea.around[part]:
                self.learn(near)
        return SUNK

    def choices(self):
        """Equally likely lists of equally likely cells: [(name, cells)]; a cell may stand in a list twice."""
        if self.target is not None:
            return [("finishing", self.beside_hits())]
        fewest = min(self.known_beside[cell] for cell in self.unknown)
        if fewest == 4 or self.only_singles_left():
            return [("anywhere", [cell for cell in self.sea.cells if cell in self.unknown])]
        candidates = [[cell for cell in block if cell in self.unknown and self.known_beside[cell] == fewest]
                      for block in self.sea.blocks]
        *_, second, best = rank(candidates)
        return [("best block", best)] + ([("second block", second)] if second else [])

    def beside_hits(self):
        return [near for cell in self.fleet[self.target] if cell in self.hits
                for near in self.sea.edge[cell] if near in self.unknown]

    def hits_in_line(self, cells):
        hits = self.hits.intersection(self.fleet[self.target])
        return {(x, y): sum(x == u or y == v for u, v in hits) for x, y in cells}

    def only_singles_left(self):
        return all(len(boat) == 1 or number in self.sunk for number, boat in enumerate(self.fleet))


def rank(candidates):
    """By number, ascending, with the ties of a plain selection sort."""
    ranking = list(candidates)
    for i in range(len(ranking) - 1):
        least = i
        for j in range(i + 1, len(ranking)):
            if len(ranking[j]) < len(ranking[least]):
                least = j
        ranking[i], ranking[least] = ranking[least], ranking[i]
    return ranking


# ---- replay of a game

class Game:
    """One game as the program tells it, replayed shot by shot."""

    def __init__(self, sea, data):
        self.sea = sea
        self.player, self.computer = fleet_of(data["player"]), fleet_of(data["computer"])
        self.presses, self.replies = triples(data["human"]), triples(data["reply"])
        self.winner = data["winner"]
        if set(data) != {"size", "player", "computer", "human", "reply", "winner"} or data["size"] != sea.size:
            raise Wrong("wrong members or wrong size")
        self.hunter = Hunter(sea, self.player)
        self.pressed = set()

    def replay(self, tally):
        check_human_fleet(self.sea, self.player)
        check_computer_fleet(self.sea, self.computer)
        tally_computer_fleet(self.sea, self.computer, tally)
        replies = iter(self.replies)
        winner = None
        for number, (cell, code) in enumerate(self.presses, 1):
            if winner:
                raise Wrong(f"press {number} comes after the end of the game")
            expect(f"code of press {number} at {cell}", code, self.press(cell))
            if code == REPEATED:
                continue
            winner = HUMAN if self.pressed.issuperset(sum(self.computer, [])) else self.reply(replies, tally)
        expect("winner", self.winner, winner)
        expect("replies left over", len(list(replies)), 0)

    def press(self, cell):
        if not self.sea.has(cell):
            raise Wrong(f"press {cell} is off the field")
        if cell in self.pressed:
            return REPEATED
        self.pressed.add(cell)
        boat = next((boat for boat in self.computer if cell in boat), None)
        if boat is None:
            return 0
        return SUNK if self.pressed.issuperset(boat) else HIT

    def reply(self, replies, tally):
        """Takes the next reply; gives the winner, if that decides the game."""
        cell, code = next(replies, (None, None))
        choices = self.hunter.choices()
        name, cells = next((choice for choice in choices if cell in choice[1]), (None, None))
        if name is None:
            raise Wrong(f"reply {cell} after {len(self.pressed)} counted presses is none of {choices}")
        if len(choices) == 2:
            tally["block"].append(quantile({"best block": 1, "second block": 1}, name))
        self.tally_reply(tally, name, cells, cell)
        expect(f"code of the reply at {cell}", code, self.hunter.shoot(cell))
        return COMPUTER if self.hunter.won() else None

    def tally_reply(self, tally, name, cells, cell):
        """Tallies the cell by its place in the list, and in orders that bring typical faults to light."""
        weights = Counter(cells)
        tally[name].append(quantile(weights, cell))
        orders = {"boats": {other: other in self.hunter.boat_at for other in cells}}
        if name == "finishing":
            orders.update({"repeats": weights, "cells in line": self.hunter.hits_in_line(cells)})
        for order, rating in orders.items():
            if len(set(rating.values())) > 1:
                tally[f"{name}, {order} first"].append(quantile(sorted_by(weights, rating), cell))

    def picture(self):
        """The computer's fleet, and the human's with the computer's shots, side by side."""
        rows = ["computer's fleet".ljust(2 * self.sea.width + 4) + "player's fleet: + hit, o known water"]
        for y in range(1, self.sea.height + 1):
            line = [(x, y) for x in range(1, self.sea.width + 1)]
            left = " ".join(letter(self.computer, cell) for cell in line)
            right = " ".join(self.shown(cell) for cell in line)
            rows.append(f"{left}     {right}")
        return "\n".join(rows)

    def shown(self, cell):
        if cell in self.hunter.hits:
            return "+"
        mark = letter(self.player, cell)
        return "o" if mark == "." and cell not in self.hunter.unknown else mark


def letter(fleet, cell):
    return next((chr(ord("A") + number) for number, boat in enumerate(fleet) if cell in boat), ".")


def fleet_of(raw):
    return [[(x, y) for x, y in boat] for boat in raw]


def triples(raw):
    return [((x, y), code) for x, y, code in raw]


def expect(what, found, wanted):
    if type(found) is not type(wanted) or found != wanted:
        raise Wrong(f"{what}: {found} instead of {wanted}")


# ---- frequencies

def sorted_by(weights, rating):
    return {option: weights[option] for option in sorted(weights, key=lambda option: -rating[option])}


def quantile(weights, chosen):
    """A number that is uniform on [0, 1) if the choice follows the weights."""
    below = 0
    for option, weight in weights.items():
        if option == chosen:
            return (below + random.random() * weight) / sum(weights.values())
        below += weight
    raise Wrong(f"{chosen} has no chance among {list(weights)}")


class Ledger:
    """How often each option was chosen, and how often it should have been."""

    def __init__(self):
        self.chosen, self.expected = Counter(), Counter()

    def add(self, weights, chosen):
        whole = sum(weights.values())
        self.chosen[chosen] += 1
        for option, weight in weights.items():
            self.expected[option] += weight / whole

    def check(self, report, name, options):
        """Each option as often as it should be, by Chernoff's bound, which holds for small numbers too."""
        for option in options:
            found, mean = self.chosen[option], self.expected[option]
            distance = mean - found + (found * math.log(found / mean) if found else 0)
            probability = 2 * len(options) * math.exp(-distance)
            report.check(probability >= LEAST_PROBABILITY, name,
                         f"{option} {found} times instead of {mean:.1f}, probability {probability:.2g}")


def chi_square(counts):
    """The probability of counts this uneven if all are equally likely (Wilson and Hilferty)."""
    mean, freedom = sum(counts) / len(counts), len(counts) - 1
    distance = sum((count - mean) ** 2 for count in counts) / mean
    z = ((distance / freedom) ** (1 / 3) - 1 + 2 / (9 * freedom)) / math.sqrt(2 / (9 * freedom))
    return math.erfc(z / math.sqrt(2)) / 2


def check_frequencies(report, tally):
    """Each kind of choice follows its weights, and successive choices are independent."""
    for name, values in tally.items():
        slots = Counter(int(10 * value) for value in values)
        check_even(report, f"frequencies, {name}", [slots[i] for i in range(10)])
        pairs = Counter(zip((int(4 * v) for v in values[::2]), (int(4 * v) for v in values[1::2])))
        check_even(report, f"successive choices, {name}", [pairs[i, j] for i in range(4) for j in range(4)])
    counts = ", ".join(f"{len(values)} {name}" for name, values in tally.items())
    print(f"random choices: {counts}")


def check_even(report, name, counts):
    if sum(counts) >= 50 * len(counts):
        probability = chi_square(counts)
        report.check(probability >= LEAST_PROBABILITY, name, f"probability {probability:.2g}, counts {counts}")


# ---- running the program

class Report:
    def __init__(self):
        self.passed = self.failed = 0
        self.shown = Counter()

    def check(self, good, name, detail=""):
        self.passed += bool(good)
        self.failed += not good
        self.shown[name] += not good
        if not good and self.shown[name] <= 3:
            print(f"FAILED {name}: {detail}")


class Program:
    def __init__(self, path, folder):
        self.path = path
        self.file = str(Path(folder) / "input.jsonl")

    def run(self, *arguments):
        try:
            return subprocess.run([self.path, *arguments], capture_output=True, text=True, errors="replace",
                                  timeout=RUN_SECONDS)
        except (OSError, subprocess.TimeoutExpired) as error:
            return subprocess.CompletedProcess(arguments, None, "", str(error))

    def write(self, text):
        Path(self.file).write_text(text)
        return self.file

    def lines(self, report, name, count, *arguments):
        """The lines of a run that should go well and give that many."""
        done = self.run(*arguments)
        lines = done.stdout.splitlines()
        good = done.returncode == 0 and not done.stderr and len(lines) == count
        report.check(good, name, f"status {done.returncode}, {len(lines)} lines of {count}, {done.stderr[:200]!r}")
        return lines


def check_games(report, program, size, count, tally):
    sea = Sea(size)
    tastes = list(TASTES)
    fleets = [build_fleet(sea, tastes[number % len(tastes)]) for number in range(max(1, count // 2))]
    file = program.write("".join(json.dumps(fleet) + "\n" for fleet in fleets))
    size_given = ("--size", str(size))
    free = program.lines(report, f"size {size}: random fleets", count, *size_given, "--games", str(count))
    given = program.lines(report, f"size {size}: given fleets", len(fleets),
                          *size_given, "--games", str(len(fleets)), "--fleets", file)
    report.check(len(set(free)) == len(free), f"size {size}: no game comes twice")
    winners, codes = Counter(), Counter()
    for number, line in enumerate(free + given):
        fleet = fleets[number - len(free)] if number >= len(free) else None
        game = check_game(report, sea, line, fleet, tally)
        if game:
            winners[game.winner] += 1
            codes.update(code for _, code in game.presses)
    if count >= 100:
        report.check(winners[HUMAN] and winners[COMPUTER] and codes[REPEATED],
                     f"size {size}: variety of games", f"winners {dict(winners)}, codes {dict(codes)}")
        sea.firsts.check(report, f"size {size}: each first cell", sea.cells)
        sea.steps.check(report, f"size {size}: each direction", DIRECTIONS)
    print(f"size {size}: {len(free + given)} games, {winners[HUMAN]} won by the human,"
          f" {winners[COMPUTER]} by the computer")


def check_game(report, sea, line, fleet, tally):
    """Replays one line; gives the game if it is right."""
    game = None
    try:
        game = Game(sea, json.loads(line))
        if fleet:
            expect("given fleet", game.player, fleet)
        game.replay(tally)
    except (Wrong, ValueError, KeyError, TypeError, IndexError) as error:
        picture = game.picture() if game else ""
        report.check(False, f"size {sea.size}: game", f"{type(error).__name__} {error}\n{picture}\n{line}\n")
        return None
    report.check(True, f"size {sea.size}: game")
    return game


# ---- presses of the set-up

# (size, presses), each as x,y and + if it is accepted, - if it is refused.
HAND_WRITTEN = (
    (1, "1,1+ 2,1+ 2,2+ 1,2- 3,2+ 4,3- 5,2+ 5,2- 6,3- 6,2+ 6,2- 5,3+ 7,2- 1,4+ 2,5- 2,4+ 2,4- 3,4+ 10,8+ 9,8+"),
    (1, "0,1- 1,0- 0,0- 11,1- 1,9- 11,9- -1,1- 1,-1- 257,1- 1,257- 256,256- 65537,1- 10,8+ 11,8- 10,9- 10,7+"),
    (1, "2,2+ 1,1- 3,3- 1,3- 3,1- 2,4- 4,2- 2,1+ 1,2+ 1,1- 3,2+ 5,2+"),
    (1, "4,4+ 3,4+ 5,4+ 4,5+ 4,6- 6,5- 6,4- 6,3- 2,5- 5,6- 3,6- 2,3- 7,4+ 8,4+ 7,5+ 8,5-"),
    (1, "1,1+ 2,1+ 3,1+ 4,1+ 6,1+ 7,1+ 8,1+ 1,3+ 2,3+ 3,3+ 5,3+ 6,3+ 8,3+ 9,3+ 1,5+ 3,5+ 5,5+ 7,5- 9,8- 10,8- 1,1-"),
    (1, ""),
    (2, "15,12+ 14,12+ 14,11+ 15,11- 13,12+ 13,11- 12,12+ 11,11- 10,11+ 10,12+ 9,11+ 9,12- 9,10+ 8,9- 16,1- 15,1+"),
    (3, "20,16+ 20,15+ 19,15+ 18,15+ 18,16+ 19,16- 17,16+ 19,13+ 21,13- 20,17- 20,13+ 20,14- 19,12+ 20,12-"),
    (3, "5,5+ 6,5+ 7,5+ 7,6+ 7,7+ 6,6- 6,7+ 5,7- 5,6- 6,8- 6,9+ 4,8-"),
)


def parse_presses(text):
    presses = [re.fullmatch(r"(-?\d+),(-?\d+)([+-])", word).groups() for word in text.split()]
    return [(int(x), int(y)) for x, y, _ in presses], [mark == "+" for _, _, mark in presses]


def random_presses(sea):
    """Presses at, around and off the boat in work, past the end of the fleet if it gets there."""
    setup, presses, accepted = Setup(sea), [], []
    for _ in range(random.randrange(20, 6 * sea.size * 60)):
        boat = [] if setup.complete() else setup.fleet[setup.boat]
        cell = random.choice(boat) if boat and random.random() < 0.8 else random.choice(sea.cells)
        presses.append((cell[0] + random.randint(-1, 1), cell[1] + random.randint(-1, 1)))
        accepted.append(setup.press(presses[-1]))
    return presses, accepted


def check_presses(report, program):
    cases = [(size, *parse_presses(text)) for size, text in HAND_WRITTEN]
    cases += [(size, *random_presses(Sea(size))) for size in FIELDS for _ in range(60)]
    file = program.write("".join(json.dumps({"size": size, "presses": presses}) + "\n" for size, presses, _ in cases))
    lines = program.lines(report, "presses", len(cases), "--presses", file)
    for (size, presses, accepted), line in zip(cases, lines):
        try:
            found = json.loads(line)
        except ValueError:
            found = line
        report.check(found == {"accepted": accepted}, "presses", f"size {size}, {presses}\n{line}\nwanted {accepted}")
    print(f"presses: {len(cases)} sequences, {sum(len(presses) for _, presses, _ in cases)} presses")


# ---- broken input

GOOD_FLEET = "1,1 2,1 3,1 4,1/6,1 7,1 8,1/1,3 2,3 3,3/5,3 6,3/8,3 9,3/1,5/3,5/5,5"
# Boat and the cells to put in its place.
BROKEN_BOATS = (
    (4, "4,3 5,3"), (4, "5,3 4,3"), (8, "4,4"),  # beside another boat, at a corner of it
    (2, "6,1 7,1 9,1"), (2, "6,1 7,1 8,2"), (1, "7,7 8,7 8,8 7,8"), (5, "8,3 8,3"),
    (6, "0,5"), (2, "9,1 10,1 11,1"), (8, "5,9"), (7, "259,5"), (6, "-1,5"),  # off the field
    (3, "1,3 2,3"), (6, "1,5 1,6"), (7, ""),  # too short, too long
)
BROKEN_FLEETS = ("no JSON", "[[1,2]", "7", "{}", "[[1,1]]", '[["a","b"]]', GOOD_FLEET)
BROKEN_PRESSES = ("no JSON", "[]", '{"size":4,"presses":[]}', '{"presses":[]}')
BROKEN_OPTIONS = ("", "--size", "--size 4", "--size x", "--size 1 --unknown", "--size 1 --unknown 1",
                  "--size 1 unknown", "--size 1 --games -1", "--presses", "--presses /nowhere/input",
                  "--size 1 --fleets /nowhere/input")


def fleet_json(text):
    return json.dumps([[[int(v) for v in cell.split(",")] for cell in boat.split()] for boat in text.split("/")])


def check_refused(report, program, name, arguments, line=""):
    """One line on stderr, which tells of that line, status 2 and no output."""
    done = program.run(*arguments)
    good = done.returncode == 2 and re.fullmatch(f"[^\n]+{line}[^\n]*\n", done.stderr) and not done.stdout
    report.check(good, f"broken input, {name}", f"status {done.returncode}, stderr {done.stderr[:300]!r},"
                 f" stdout {done.stdout[:100]!r}, wanted: {line}")


def check_broken_input(report, program):
    fleets = list(BROKEN_FLEETS)
    fleets += [fleet_json(GOOD_FLEET.rpartition("/")[0]), fleet_json(GOOD_FLEET + "/7,5")]
    for number, cells in BROKEN_BOATS:
        boats = GOOD_FLEET.split("/")
        boats[number - 1] = cells
        fleets.append(fleet_json("/".join(boats)))
    for fleet in fleets:
        file = program.write(f"{fleet_json(GOOD_FLEET)}\n" * 2 + fleet)
        check_refused(report, program, f"fleet {fleet}", ("--size", "1", "--fleets", file), "line 3")
    for text in BROKEN_PRESSES:
        check_refused(report, program, f"presses {text}", ("--presses", program.write(text)), "line 1")
    for text in BROKEN_OPTIONS:
        check_refused(report, program, f"options {text!r}", text.split())


def main():
    parser = argparse.ArgumentParser(description="Checks the program `simulate` from outside.")
    parser.add_argument("simulate")
    parser.add_argument("--games", type=int, default=500, metavar="N", help="games per size with random fleets")
    options = parser.parse_args()
    report = Report()
    with tempfile.TemporaryDirectory() as folder:
        program = Program(options.simulate, folder)
        tally = defaultdict(list)
        for size in FIELDS:
            check_games(report, program, size, options.games, tally)
        check_frequencies(report, tally)
        check_presses(report, program)
        check_broken_input(report, program)
    print(f"{report.passed} passed, {report.failed} failed")
    return 1 if report.failed else 0


if __name__ == "__main__":
    sys.exit(main())
