"""The human has won: a fanfare of three trumpets, low brass and a drum."""

BRASS = (1, .9, .75, .55, .4, .3, .2, .14, .1, .07)

# (time, length, the notes of the chord)
FANFARE = (
    (0.02, .13, "D4 F#4 A4"), (0.18, .13, "D4 F#4 A4"),
    (0.34, .28, "F#4 A4 D5"), (0.66, .13, "E4 A4 C#5"),
    (0.82, .28, "G4 B4 E5"), (1.14, .13, "F#4 A4 D5"),
    (1.30, .28, "B4 D5 G5"), (1.62, 1.18, "A4 D5 F#5"),
)
BASS = ((0.02, .28, "D3"), (0.34, .28, "D3"), (0.66, .13, "A2"),
        (0.82, .28, "E3"), (1.14, .13, "D3"), (1.30, .28, "G2"),
        (1.62, 1.15, "D3"))


def cook(k):
    for at, long, chord in FANFARE:
        for gain, note in zip((.20, .22, .34), chord.split()):
            wide = 0.14 if long > 1 else 0.0
            k.add(at, k.blown(note, long, BRASS, .02, .30 if wide else .05, wide, 5.2, decay=3,
                              bend=[(0, -.35), (.03, 0), (long, 0)]), gain)
    for at, long, note in BASS:
        k.add(at, k.blown(note, long, BRASS, .03, .06, decay=3), .26)
    # The drum: on the beats, and a roll into the last chord.
    hits = [0.02, 0.34, 0.82] + [1.30 + .04 * i for i in range(8)] + [1.62]
    for at in hits:
        gain = .5 if at in (0.02, 0.34, 0.82, 1.62) else .12 + .3 * (at - 1.3)
        k.add(at, k.fall(k.sine([(0, 170), (.1, 90)], .25), .25), .5 * gain)
        k.add(at, k.fall(k.filter(k.noise(.12), "high", 1500), .12), .4 * gain)
    k.room(0.3, 0.8)
    k.ending(0.35)
