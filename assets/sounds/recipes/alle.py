"""The last boat is finished: a bosun's pipe, then two pairs of the bell."""


def pipe(k, at, seconds, bend, gain=0.3):
    breath = k.filter(k.noise(seconds), "band", 2100, 3)
    breath = k.shape(breath, [(0, 0), (.03, 1), (seconds - .05, 1), (seconds, 0)])
    k.add(at, k.blown(1480, seconds, (1, .12, .05), .025, .05, bend=bend), gain)
    k.add(at, breath, 0.10 * gain)


def bell(k, at, gain):
    base = 784.0
    metal = ((.5, .35, 2.2), (1, 1, 2.0), (1.003, .5, 1.7), (1.19, .45, 1.5),
             (1.5, .3, 1.2), (2.0, .55, 1.1), (2.62, .3, .8), (3.01, .28, .6),
             (4.17, .2, .4), (5.43, .12, .25))
    k.add(at, k.struck([(base * r, g, d) for r, g, d in metal],
                       k.seconds - at, 0.002), gain)


def cook(k):
    # Low, up to the high note with a trill, and a short turn down.
    pipe(k, 0.02, 0.34, [(0, -1), (.08, 0), (.34, 0)])
    trill = [(.10 + .045 * i, 7 + .9 * (i % 2)) for i in range(12)]
    pipe(k, 0.40, 0.86, [(0, 0), (.08, 7)] + trill + [(.70, 7), (.86, 2)])
    for at, gain in ((1.22, .34), (1.47, .34), (1.92, .34), (2.17, .40)):
        bell(k, at, gain)
    k.room(0.3, 0.9)
    k.ending(0.5)
