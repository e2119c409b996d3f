#!/usr/bin/env python3
"""Checks the program `simulate` from outside, with a model of the rules of its own: games, the
frequencies of all random choices, press sequences of the set-up.

usage: check_simulate.py SIMULATE [GAMES of each size]
"""
import itertools
import json
import math
import random
import subprocess
import sys
import tempfile
from collections import Counter, defaultdict

FIELDS = {1: (10, 8), 2: (15, 12), 3: (20, 16)}
LENGTHS = {
    1: (4, 3, 3, 2, 2, 1, 1, 1),
    2: (5, 4, 4, 3, 3, 2, 2, 2, 1, 1, 1, 1),
    3: (6, 5, 5, 4, 4, 3, 3, 2, 2, 2, 1, 1, 1, 1),
}
STEPS = ((0, -1), (1, 0), (0, 1), (-1, 0))  # up, right, down, left
CORNERS = ((1, -1), (1, 1), (-1, 1), (-1, -1))
BLOCK_WIDTH, BLOCK_HEIGHT = 5, 4
WATER, REPEATED, HIT, SUNK = range(4)
HUMAN, COMPUTER = 1, 2
# Below this a frequency fails. With 150 tests a right program fails once in six million runs.
LEAST_PROBABILITY = 1e-9
FAILED = Counter()


def check(good, name, detail=""):
    FAILED[name] += not good
    if not good and FAILED[name] <= 3:
        print(f"FAILED {name}: {detail}")


def require(good, what):
    if not good:
        raise ValueError(what)


class Sea:
    """The geometry of one board size. A cell is a pair (x, y), both from 1."""

    def __init__(self, size):
        self.size = size
        self.width, self.height = FIELDS[size]
        self.lengths = LENGTHS[size]
        self.cells = [(x, y) for y in range(1, self.height + 1) for x in range(1, self.width + 1)]
        self.edge = {cell: self.beside(cell, STEPS) for cell in self.cells}
        self.around = {cell: self.beside(cell, STEPS + CORNERS) for cell in self.cells}
        self.boxes = {cell: list(self.open_boxes(cell)) for cell in self.cells}
        blocks = defaultdict(list)
        for x, y in self.cells:
            blocks[(y - 1) // BLOCK_HEIGHT, (x - 1) // BLOCK_WIDTH].append((x, y))
        self.blocks = [blocks[place] for place in sorted(blocks)]

    def has(self, cell):
        return 1 <= cell[0] <= self.width and 1 <= cell[1] <= self.height

    def beside(self, cell, offsets):
        return list(filter(self.has, ((cell[0] + dx, cell[1] + dy) for dx, dy in offsets)))

    def open_boxes(self, cell):
        """The steps from a cell whose six cells ahead lie on the field: number, target, box."""
        for number, (dx, dy) in enumerate(STEPS):
            box = self.beside(cell, [(dx * depth + dy * side, dy * depth + dx * side)
                                     for depth in (1, 2) for side in (-1, 0, 1)])
            if len(box) == 6:
                yield number, (cell[0] + dx, cell[1] + dy), frozenset(box)


# ---- frequencies

def add(tally, name, weights, chosen):
    """Tallies a choice by its place among the options, uniform on [0, 1) if chosen by weight."""
    require(weights.get(chosen), f"{name}: {chosen} has no chance")
    before = itertools.takewhile(lambda option: option != chosen, weights)
    below = sum(weights[option] for option in before)
    whole = sum(weights.values())
    tally[name].append((below + random.random() * weights[chosen]) / whole)


def check_frequencies(tally):
    """Parts of the places, and pairs of them, by Chernoff's bound, which holds for few too."""
    for name, places in tally.items():
        for parts, group in (4, 1), (20, 1), (4, 2):
            found = [int(parts * place) for place in places]
            counts = Counter(zip(*(found[first::group] for first in range(group))))
            mean = counts.total() / parts ** group
            for option in itertools.product(range(parts), repeat=group):
                count = counts[option]
                distance = mean - count + (count * math.log(count / mean) if count else 0)
                check(2 * parts ** group * math.exp(-distance) >= LEAST_PROBABILITY,
                      f"choice of {name}", f"{option} {count} times instead of {mean:.1f}")


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


def step_shares(sea, taken, cell):
    """Target -> draws of four that lead there: a closed direction hands on clockwise."""
    ways = [(way, target) for way, target, box in sea.boxes[cell] if taken.isdisjoint(box)]
    return Counter(min(ways, key=lambda way: (way[0] - drawn) % 4)[1]
                   for drawn in range(4) if ways)


def outlook(sea, taken, cell, missing):
    """The chance that a walk gets through from a cell, None for a dead end. It steps back from
    dead ends and draws again, and fails where every way on is one."""
    if missing == 0:
        return 1
    shares = step_shares(sea, taken, cell)
    chances = {target: outlook(sea, taken | {target}, target, missing - 1) for target in shares}
    lasting = [target for target in shares if chances[target] is not None]
    if not lasting:
        return 0 if shares else None
    draws = sum(shares[target] for target in lasting)
    return sum(shares[target] * chances[target] for target in lasting) / draws


def check_computer_fleet(sea, fleet, tally):
    """Free first cells and open boxes keep boats apart, from the rim and from themselves."""
    require([len(boat) for boat in fleet] == list(sea.lengths), "computer's boats: wrong lengths")
    taken = set()  # what stood on the field at that time; a dead end had left it
    for boat in fleet:
        require(taken.isdisjoint([boat[0], *sea.around[boat[0]]]), f"{boat} begins at another boat")
        if len(boat) <= 2:
            free = [cell for cell in sea.cells if taken.isdisjoint([cell, *sea.around[cell]])]
            for axis, what in enumerate(("column", "row")):
                weights = Counter()
                for cell in free:
                    weights[cell[axis]] += outlook(sea, {cell, *taken}, cell, len(boat) - 1) or 0
                for n, weight in weights.items():
                    add(tally, f"first cell in {what} {n}",
                        {True: weight, False: weights.total() - weight}, n == boat[0][axis])
        taken.add(boat[0])
        for missing, here, there in zip(range(len(boat) - 2, -1, -1), boat, boat[1:]):
            # Of a boat that got through, so that no step into a dead end is left of its walk.
            weights = Counter({to: share * (outlook(sea, taken | {to}, to, missing) or 0)
                               for to, share in step_shares(sea, taken, here).items()})
            add(tally, "step, likeliest first", dict(weights.most_common()), there)
            taken.add(there)


class Hunter:
    """The computer at the human's fleet: what it knows, and the cells that it may choose."""

    def __init__(self, sea, fleet):
        self.sea = sea
        self.fleet = fleet
        self.boat_at = {cell: number for number, boat in enumerate(fleet) for cell in boat}
        self.unknown = set(sea.cells)
        self.known_beside = dict.fromkeys(sea.cells, 0)
        self.hits = set()
        self.sunk = set()
        self.target = None

    def learn(self, cell):
        if cell in self.unknown:
            self.unknown.remove(cell)
            for near in self.sea.edge[cell]:
                self.known_beside[near] += 1

    def shoot(self, cell):
        self.learn(cell)
        number = self.boat_at.get(cell)
        if number is None:
            return WATER
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
        """Equally likely lists: name -> cells with their weights, in an order that shows faults."""
        if self.target is not None:
            return self.beside_hits()
        fewest = min(self.known_beside[cell] for cell in self.unknown)
        if fewest == 4 or all(len(boat) == 1 or number in self.sunk
                              for number, boat in enumerate(self.fleet)):
            return {"anywhere": Counter(cell for cell in self.sea.cells if cell in self.unknown)}
        blocks = [[cell for cell in block
                   if cell in self.unknown and self.known_beside[cell] == fewest]
                  for block in self.sea.blocks]
        *_, second, best = rank(blocks)
        lists = ("best block", best), ("second block", second)
        return {name: Counter(cells) for name, cells in lists if cells}

    def beside_hits(self):
        """Repeats first, and of those what lies in line with most hits."""
        hits = self.hits.intersection(self.fleet[self.target])
        cells = Counter(near for cell in hits for near in self.sea.edge[cell]
                        if near in self.unknown)
        in_line = {(x, y): sum(x == u or y == v for u, v in hits) for x, y in cells}
        order = sorted(cells, key=lambda cell: (-cells[cell], -in_line[cell]))
        name = f"finishing, {min(len(hits), 3)} hits, {max(cells.values())} fold"
        return {name: {cell: cells[cell] for cell in order}}


def rank(blocks):
    """By number, ascending, with the ties of a plain selection sort."""
    ranking = list(blocks)
    for i in range(len(ranking) - 1):
        least = min(range(i, len(ranking)), key=lambda j: len(ranking[j]))
        ranking[i], ranking[least] = ranking[least], ranking[i]
    return ranking


# ---- replay of a game

def replay(sea, game, tally):
    """Replays a game as the program tells it; gives the winner and how often each code came."""
    human, computer = ([[tuple(cell) for cell in boat] for boat in game[side]]
                       for side in ("player", "computer"))
    setup = Setup(sea)
    for cell in sum(human, []):
        require(setup.press(cell), f"the human's fleet may not stand on {cell}")
    require(setup.fleet == human and setup.complete(), "the human's boats have wrong lengths")
    check_computer_fleet(sea, computer, tally)
    hunter = Hunter(sea, human)
    replies = iter(game["reply"])
    pressed, codes, winner = set(), Counter(), None
    for x, y, code in game["human"]:
        require(winner is None and sea.has((x, y)), f"press {x, y} comes late or is off the field")
        wanted = press(computer, pressed, (x, y))
        require(code == wanted, f"press {x, y}: code {code} instead of {wanted}")
        codes[code] += 1
        if pressed.issuperset(sum(computer, [])):
            winner = HUMAN
        elif code != REPEATED:
            reply(hunter, next(replies, (0, 0, None)), tally)
            winner = COMPUTER if len(hunter.sunk) == len(human) else None
    require(winner == game["winner"] and not list(replies), f"the winner is {winner}")
    return winner, codes


def press(fleet, pressed, cell):
    if cell in pressed:
        return REPEATED
    pressed.add(cell)
    boat = next((boat for boat in fleet if cell in boat), None)
    return WATER if boat is None else SUNK if pressed.issuperset(boat) else HIT


def reply(hunter, shot, tally):
    cell, choices = (shot[0], shot[1]), hunter.choices()
    name = next((name for name, cells in choices.items() if cell in cells), None)
    require(name, f"reply {cell} is not among its choices")
    if len(choices) == 2:
        add(tally, "block", dict.fromkeys(choices, 1), name)
    add(tally, name, choices[name], cell)
    chances = Counter()  # of a boat: who peeks hits more
    for option, weight in choices[name].items():
        chances[option in hunter.boat_at] += weight
    add(tally, "boat, " + name.split(",")[0], chances, cell in hunter.boat_at)
    wanted = hunter.shoot(cell)
    require(shot[2] == wanted, f"reply {cell}: code {shot[2]} instead of {wanted}")


def run(*arguments):
    return subprocess.run([sys.argv[1], *arguments], capture_output=True, text=True, timeout=300)


def check_games(size, count, tally):
    sea = Sea(size)
    done = run("--size", str(size), "--games", str(count))
    games = done.stdout.splitlines()
    check(done.returncode == 0 and not done.stderr and len(set(games)) == count,
          f"size {size}", f"{len(games)} lines, no game twice, {done.stderr[:200]!r}")
    seen = Counter()
    for line in games:
        try:
            winner, codes = replay(sea, json.loads(line), tally)
            seen.update([f"winner {winner}", *codes])
        except (ValueError, KeyError, TypeError, IndexError) as error:
            check(False, f"game of size {size}", f"{type(error).__name__} {error}\n{line}")
    check(len(seen) == 6 or count < 100, f"size {size}: both win, all codes", dict(seen))


def random_presses(sea):
    """Presses at, around and off the boat in work, past the end of the fleet if it gets there."""
    setup, presses, accepted = Setup(sea), [], []
    for _ in range(random.randrange(20, 360 * sea.size)):
        boat = [] if setup.complete() else setup.fleet[setup.boat]
        cell = random.choice(boat if boat and random.random() < 0.8 else sea.cells)
        presses.append((cell[0] + random.randint(-1, 1), cell[1] + random.randint(-1, 1)))
        accepted.append(setup.press(presses[-1]))
    return presses, accepted


def check_presses():
    cases = [(size, *random_presses(Sea(size))) for size in FIELDS for _ in range(60)]
    with tempfile.NamedTemporaryFile("w") as file:
        for size, presses, _ in cases:
            print(json.dumps({"size": size, "presses": presses}), file=file, flush=True)
        lines = run("--presses", file.name).stdout.splitlines()
    check(len(lines) == len(cases), "presses", f"{len(lines)} lines of {len(cases)}")
    for (size, presses, accepted), line in zip(cases, lines):
        check(json.loads(line) == {"accepted": accepted}, "presses",
              f"size {size}, {presses}\n{line}\nwanted {accepted}")


tally = defaultdict(list)
for size in FIELDS:
    check_games(size, int(sys.argv[2]) if len(sys.argv) > 2 else 300, tally)
check_frequencies(tally)
check_presses()
sys.exit(f"{FAILED.total()} failed" if FAILED.total() else 0)
