"""A shot in the water: the plunge, the column of water, the drops."""


def cook(k):
    # The plunge.
    plop = k.fall(k.sine([(0, 520), (.05, 190), (.16, 95)], 0.2), 0.2)
    k.add(0.01, k.shape(plop, [(0, 0), (.004, 1), (.2, 1)]), 0.8)
    # The column rises and falls back.
    spray = k.filter(k.noise(.75), "band", [(0, 900), (.1, 2000), (.7, 700)], .7)
    k.add(0.03, k.shape(spray, [(0, 0), (.03, .8), (.10, .55), (.22, .36),
                                (.45, .10), (.75, 0)]), 0.8)
    rush = k.filter(k.noise(.6), "low", [(0, 700), (.6, 250)])
    k.add(0.02, k.shape(rush, [(0, 0), (.05, 1), (.25, .4), (.6, 0)]), 0.7)
    # The drops: small bubbles, each a sine that rises.
    t = 0.20
    while t < 0.74:
        f = k.chance.uniform(500, 1300)
        drop = k.fall(k.sine([(0, f), (.06, 1.7 * f)], .06), .06)
        k.add(t, k.shape(drop, [(0, 0), (.004, 1), (.06, 1)]),
              k.chance.uniform(.25, .7) * (1.1 - t))
        t += k.chance.uniform(.02, .06)
    k.ending(0.15)
