"""The fleet is accepted: a ship horn, one short call and one long."""


def cook(k):
    reed = [1 / n ** 0.9 * (1.5 if 3 <= n <= 7 else 1) for n in range(1, 25)]
    for at, long in ((0.01, 0.26), (0.36, 0.86)):
        for note, gain in ((146.8, .30), (147.5, .22), (185.0, .28), (220.3, .16)):
            horn = k.blown(note, long, reed, 0.05, 0.09, swell=0.3,
                           bend=[(0, -.5), (.07, 0), (long - .1, 0), (long, -.4)])
            k.add(at, k.filter(horn, "low", 2600), gain)
        steam = k.filter(k.noise(long), "band", 1500, 0.6)
        k.add(at, k.shape(steam, [(0, 0), (.04, .06), (long - .08, .04), (long, 0)]))
    k.room(0.45, 1.0)
    k.ending(0.18)
