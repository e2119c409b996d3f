"""The dustbin: paper crumples, then the lid clangs and comes to rest."""


def cook(k):
    # Crumpled paper: many short bursts of noise from all sides.
    t = 0.01
    while t < 0.50:
        size = k.chance.uniform(0.006, 0.030)
        grain = k.fall(k.noise(size), size)
        grain = k.filter(grain, "band", k.chance.uniform(1500, 6000), 1.2)
        k.add(t, grain, k.chance.uniform(0.4, 1.6) * (1.1 - t),
              k.chance.uniform(-0.8, 0.8))
        t += k.chance.expovariate(90)
    # The lid: sheet metal, first hard, then bouncing twice.
    lid = ((212, .5, .35), (347, .8, .6), (521, .7, .7), (733, .8, .8),
           (1009, .6, .6), (1373, .5, .5), (1847, .4, .4), (2531, .35, .3),
           (3467, .25, .22), (4813, .2, .15))
    for at, gain, bend, pan in ((0.54, .60, 1.0, -.25), (0.80, .26, 1.03, .2),
                                (0.93, .13, 1.05, .3), (1.00, .07, 1.06, .3)):
        for side in (-0.6, 0.6):
            metal = [(f * bend * (1 + 0.004 * side), g, d) for f, g, d in lid]
            k.add(at, k.struck(metal, 1.3 - at, 0.002), gain, pan + side / 2)
        k.add(at, k.fall(k.filter(k.noise(.03), "band", 2200), .03), gain, pan)
    k.room(0.35, 0.4)
    k.ending(0.15)
