"""A boat sinks: the explosion, a long fall, the last bubbles."""


def cook(k):
    # The explosion.
    boom = k.fall(k.sine([(0, 150), (.08, 70), (.9, 40)], 1.2), 1.5)
    k.add(0.01, k.shape(boom, [(0, 0), (.004, 1), (1.2, 1)]), 1.0)
    blast = k.filter(k.noise(1.5), "low", [(0, 5000), (.12, 2400), (.5, 1000),
                                           (1.5, 150)])
    k.add(0.008, k.fall(blast, 1.9), 1.1)
    # Debris.
    for _ in range(26):
        t = 0.08 + k.chance.random() ** 1.6 * 0.7
        bit = k.filter(k.noise(.04), "band", k.chance.uniform(600, 3000), 2)
        k.add(t, k.fall(bit, .04), 0.5 * (1 - t))
    # The long fall: two tones sinking with the hull.
    for start, gain in ((660, .30), (495, .25)):
        path = [(.1 * i, start * 0.8 ** (1.1 * i)) for i in range(15)]
        tone = k.sine(path, 1.35)
        tone = [s + .4 * s * s * s for s in tone]
        k.add(0.22, k.shape(tone, [(0, 0), (.12, 1), (.7, .7), (1.35, 0)]), gain)
    # Bubbles.
    t = 1.0
    while t < 1.62:
        f = k.chance.uniform(180, 480)
        k.add(t, k.shape(k.sine([(0, f), (.07, 1.8 * f)], .07),
                         [(0, 0), (.012, 1), (.07, 0)]),
              k.chance.uniform(.10, .22) * (1.9 - t))
        t += k.chance.uniform(.035, .08)
    k.room(0.25, 0.7, 0.5)
    k.ending(0.2)
