"""A boat is finished: the mallet knocks twice on the planks."""


def cook(k):
    for at, gain, bend in ((0.015, 0.8, 1.0), (0.235, 1.0, 1.12)):
        plank = ((236, .8, .22), (418, 1.0, .20), (667, .6, .14),
                 (1042, .45, .09), (1583, .3, .06), (2391, .2, .04))
        k.add(at, k.struck([(f * bend, g, d) for f, g, d in plank], 0.4), gain)
        tap = k.fall(k.filter(k.noise(.02), "low", 2600), .015)
        k.add(at, tap, 0.6 * gain)
    k.room(0.6, 0.7)
    k.ending(0.2)
