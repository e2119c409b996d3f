"""A hit: a dull blow on the hull."""


def cook(k):
    blow = k.fall(k.sine([(0, 190), (.05, 96), (.25, 62), (.6, 48)], .7), .9)
    k.add(0.01, k.shape(blow, [(0, 0), (.003, 1), (.7, 1)]), 1.0)
    burst = k.filter(k.noise(.5), "low", [(0, 2400), (.06, 900), (.5, 200)])
    k.add(0.008, k.fall(burst, .5), 0.8)
    hull = ((141, .6, .8), (233, .7, .65), (379, .5, .45), (557, .35, .26),
            (811, .22, .18), (1213, .12, .1))
    k.add(0.01, k.struck(hull, 0.7, .002), 0.45)
    k.room(0.4, 0.8, 0.6)
    k.ending(0.2)
