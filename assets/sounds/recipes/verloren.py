"""The computer has won: a sad phrase of a clarinet over slow low strings."""

CLARINET = (1, .06, .55, .05, .32, .05, .18, .04, .12, .03, .07, .02, .04)
STRINGS = [1 / n ** 1.25 for n in range(1, 24)]

TUNE = ((0.04, .40, "A4"), (0.44, .40, "F4"), (0.84, .20, "E4"),
        (1.04, .22, "G4"), (1.26, .40, "C#4"), (1.66, .86, "D4"))
CHORDS = ((0.02, .88, "D3 A3 D4"), (0.84, .42, "G2 Bb3 D4"),
          (1.24, .46, "A2 G3 A3"), (1.64, .90, "D2 F3 A3"))


def cook(k):
    for at, long, note in TUNE:
        last = at > 1.6
        bend = [(0, -.3), (.06, 0), (.45, 0), (long, -.5)] if last else None
        k.add(at, k.blown(note, long + .04, CLARINET, .04, .35 if last else .07,
                          .16, 5, bend=bend), .42, -.1)
    for at, long, chord in CHORDS:
        for voice, note in enumerate(chord.split()):
            for pan in (-.7, .7):
                k.add(at, k.blown(note, long + .06, STRINGS, .10, .20,
                                  .12, 4.6 + .5 * pan + .2 * voice), .12, pan)
    # A muffled drum.
    for at in (0.02, 0.84, 1.64):
        drum = k.fall(k.sine([(0, 110), (.1, 70)], .5), .5)
        k.add(at, k.shape(drum, [(0, 0), (.006, 1), (.5, 1)]), .3)
    k.room(0.5, 1.3)
    k.ending(0.35)
