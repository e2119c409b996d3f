"""Bring all sounds to one loudness, without peaks and without clicks."""
import math

LOUDNESS = -15.0                  # of the loudest 400 ms, as K-weighted power
PEAK = {"pcm16": -1.8, "pcm8": -1.8, "adpcm": -2.6}    # dB below full scale
FADE_IN, FADE_OUT = 0.003, 0.012                       # seconds


def k_weights(rate):
    """The two biquads of the K weighting (ITU-R BS.1770), for any rate."""
    k = math.tan(math.pi * 1681.97 / rate)
    q, high = 0.70718, 10 ** (3.99984 / 20)
    band = high ** 0.49967
    a0 = 1 + k / q + k * k
    shelf = ((high + band * k / q + k * k) / a0, 2 * (k * k - high) / a0,
             (high - band * k / q + k * k) / a0,
             2 * (k * k - 1) / a0, (1 - k / q + k * k) / a0)
    k = math.tan(math.pi * 38.1355 / rate)
    q = 0.50033
    a0 = 1 + k / q + k * k
    low_cut = (1, -2, 1, 2 * (k * k - 1) / a0, (1 - k / q + k * k) / a0)
    return shelf, low_cut


def biquad(samples, b0, b1, b2, a1, a2):
    x1 = x2 = y1 = y2 = 0.0
    for x in samples:
        y = b0 * x + b1 * x1 + b2 * x2 - a1 * y1 - a2 * y2
        x1, x2, y1, y2 = x, x1, y, y1
        yield y


def loudness(tracks, rate):
    """Of the loudest 400 ms, in dB; a mono sound comes from two speakers."""
    shelf, low_cut = k_weights(rate)
    power = [0.0] * len(tracks[0])
    for track in tracks:
        for i, y in enumerate(biquad(biquad(track, *shelf), *low_cut)):
            power[i] += y * y * (2 if len(tracks) == 1 else 1)
    window, hop = int(0.4 * rate), int(0.05 * rate)
    power += [0.0] * window
    loudest = max(sum(power[i:i + window])
                  for i in range(0, len(power) - window, hop))
    return -0.691 + 10 * math.log10(loudest / window + 1e-12)


def limit(tracks, rate, ceiling):
    """Look ahead 2 ms and turn peaks down smoothly."""
    ahead = int(0.002 * rate)
    need = [min(1.0, ceiling / max(1e-9, max(abs(t[i]) for t in tracks)))
            for i in range(len(tracks[0]))]
    # The lowest gain in reach, then a smooth way there and back.
    low = [min(need[max(0, i - ahead):i + ahead + 1]) for i in range(len(need))]
    back = 1 - 0.5 ** (1 / (0.04 * rate))
    held, gain = [], 1.0
    for g in low:
        gain = g if g < gain else gain + (g - gain) * back
        held.append(gain)
    gains, total = [], 0.0
    padded = [held[0]] * ahead + held + [held[-1]] * ahead
    span = 2 * ahead + 1
    total = sum(padded[:span])
    for i in range(len(held)):
        gains.append(total / span)
        if i + span < len(padded):
            total += padded[i + span] - padded[i]
    return [[max(-ceiling, min(ceiling, s * g)) for s, g in zip(t, gains)]
            for t in tracks]


def fade(tracks, rate):
    fade_in, fade_out = int(FADE_IN * rate), int(FADE_OUT * rate)
    for track in tracks:
        for i in range(fade_in):
            track[i] *= 0.5 - 0.5 * math.cos(math.pi * i / fade_in)
        for i in range(fade_out):
            track[-1 - i] *= 0.5 - 0.5 * math.cos(math.pi * i / fade_out)
    return tracks


def without_dc(track, rate):
    """A gentle low cut at 25 Hz."""
    keep = math.exp(-2 * math.pi * 25 / rate)
    x1 = y = 0.0
    out = []
    for x in track:
        y = keep * y + x - x1
        x1 = x
        out.append(y)
    return out


def master(tracks, rate, form):
    ceiling = 10 ** (PEAK[form] / 20)
    tracks = fade([without_dc(t, rate) for t in tracks], rate)
    gain = 10 ** ((LOUDNESS - loudness(tracks, rate)) / 20)
    for _ in range(8):            # the limiter takes some loudness away again
        out = limit([[s * gain for s in t] for t in tracks], rate, ceiling)
        miss = LOUDNESS - loudness(out, rate)
        if abs(miss) < 0.05:
            break
        gain *= 10 ** (miss / 20)
    return fade(out, rate)
