"""A hit: a dull blow on the hull."""


def cook(k):
    blow = k.fall(k.sine([(0, 190), (.05, 96), (.25, 62), (.6, 48)], .7), .9)
    k.add(0.01, k.shape(blow, [(0, 0), (.003, 1), (.7, 1)]), 0.7)
    burst = k.filter(k.noise(.5), "low", [(0, 2400), (.06, 1400), (.5, 300)])
    k.add(0.008, k.fall(burst, .5), 1.1)
    # The planks: what is heard of it where a speaker has no lows.
    hull = ((141, .6, .8), (233, .7, .65), (379, .9, .5), (557, .8, .4),
            (811, .5, .3), (1213, .3, .2))
    k.add(0.01, k.struck(hull, 0.7, .002), 0.7)
    k.room(0.4, 0.8, 0.6)
    k.ending(0.2)
