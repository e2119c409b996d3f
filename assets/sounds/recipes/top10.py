"""The jingle of the best ten: eight bars for concertina, plucked strings,
bass and a brush, to an easy step.  Tune and chords are written below; a
number is a length in beats."""
from kitchen import pitch

BEAT = 60 / 104
REED = (1, .55, .42, .22, .16, .08, .05)
SOFT = (1, .35, .15, .06)

TUNE = """
D5 1  F#5 .5 G5 .5  A5 1  F#5 1     B5 1.5 A5 .5  G5 1  B5 1
A5 1  F#5 .5 G5 .5  F#5 .5 E5 .5 D5 1   E5 1.5 F#5 .5  E5 1  A4 1
D5 1  F#5 .5 G5 .5  A5 1  D6 1      B5 1.5 C#6 .5  D6 .5 B5 .5 A5 .5 G5 .5
E5 1  A5 .5 G5 .5  F#5 .5 E5 .5 C#5 1   D5 3.6
"""
SECOND = """
- 16
F#4 1  A4 .5 B4 .5  D5 1  F#5 1     G5 1.5 A5 .5  B5 .5 G5 .5 F#5 .5 E5 .5
C#5 1  F#5 .5 E5 .5  D5 .5 C#5 .5 A4 1   F#4 3.6
"""
BARS = (("D3", "F#4 A4 D5"), ("G2", "G4 B4 D5"), ("D3", "F#4 A4 D5"),
        ("A2", "E4 A4 C#5"), ("B2", "F#4 B4 D5"), ("G2", "G4 B4 D5"),
        ("A2", "G4 A4 C#5"), ("D3", "F#4 A4 D5"))
FIFTH = {"D3": "A2", "G2": "D3", "A2": "E3", "B2": "F#3"}


def play(k, score, partials, gain):
    words = score.split()
    at = 0.02
    for note, beats in zip(words[::2], words[1::2]):
        long = float(beats) * BEAT
        if note != "-":
            held = long * (0.92 if float(beats) < 3 else 1)
            for tune in (0.998, 1.003):       # two reeds, a little apart
                k.add(at, k.blown(pitch(note) * tune, held, partials, .03, .06,
                                  .06, 5, decay=2), gain / 2)
        at += long


def pluck(k, at, note, gain, seconds):
    f = pitch(note)
    modes = [(f * n, 1 / n ** 1.3, seconds / n ** .5) for n in range(1, 7)]
    k.add(at, k.struck(modes, seconds, .003), gain)


def cook(k):
    play(k, TUNE, REED, 0.42)
    play(k, SECOND, SOFT, 0.26)
    for bar, (root, chord) in enumerate(BARS):
        start = 0.02 + 4 * bar * BEAT
        last = bar == len(BARS) - 1
        for beat in (0,) if last else (0, 2):
            note = root if beat == 0 else FIFTH[root]
            pluck(k, start + beat * BEAT, note, .42, 1.0)
        for beat in (0, 1, 2) if last else (1, 2.5, 3):
            for i, note in enumerate(chord.split()):
                pluck(k, start + beat * BEAT + .012 * i, note, .10,
                      2.2 if last and beat == 2 else .7)
        for beat in () if last else (1, 3, 3.5):
            brush = k.filter(k.noise(.09), "high", 2500)
            k.add(start + beat * BEAT, k.fall(brush, .09), .2)
    # The ship bell has the last word.
    end = 0.02 + 30 * BEAT
    bell = ((1174.7, 1, 1.8), (1178, .5, 1.5), (2349, .4, .9), (3120, .2, .5))
    k.add(end, k.struck(bell, k.seconds - end, .003), .2)
    k.room(0.25, 0.7)
    k.ending(0.5)
