"""A cell shot at before: a friendly "nope" of two wooden notes downwards."""
from kitchen import pitch


def cook(k):
    for at, note, hum in ((0.015, "A4", .13), (0.235, "D4", .36)):
        f = pitch(note)
        bar = ((f, 1, .75), (4 * f, .3, .14), (9.2 * f, .1, .05))
        k.add(at, k.struck(bar, 0.7, 0.002), 0.8)
        # A small voice hums along and sinks a little.
        voice = k.blown(note, hum, (1, .6, .5, .3, .15, .08), .02, .06,
                        bend=[(0, .6), (.05, 0), (hum, -.8)])
        k.add(at, k.filter(voice, "band", [(0, 620), (hum, 900)], 0.8), 0.5)
    k.room(0.3, 0.7)
    k.ending(0.25)
