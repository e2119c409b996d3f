"""The tools of the recipes.  Sounds are lists of numbers, times are seconds,
pitches are Hz or note names such as "A4" and "C#5"."""
import math
import random

TAU = 2 * math.pi


def pitch(note):
    if not isinstance(note, str):
        return float(note)
    step = {"C": -9, "D": -7, "E": -5, "F": -4, "G": -2, "A": 0, "B": 2}[note[0]]
    step += note.count("#") - note[1:].count("b")
    return 440.0 * 2 ** (step / 12 + int(note[-1]) - 4)


def curve(points):
    """A function of time running through (time, value) points."""
    if not isinstance(points, (list, tuple)):
        return lambda t: points

    def at(t):
        before = points[0]
        for point in points:
            if t < point[0]:
                span = point[0] - before[0]
                part = (t - before[0]) / span if span > 0 else 1.0
                return before[1] + (point[1] - before[1]) * part
            before = point
        return before[1]
    return at


class Kitchen:
    def __init__(self, rate, frames, channels, seed):
        self.rate = rate
        self.frames = frames
        self.seconds = frames / rate
        self.tracks = [[0.0] * frames for _ in range(channels)]
        self.chance = random.Random(seed)

    def add(self, at, sound, gain=1.0, pan=0.0):
        """Mix a sound in; pan from -1 (left) to 1 (right)."""
        start = int(at * self.rate)
        count = min(len(sound), self.frames - start)
        for channel, track in enumerate(self.tracks):
            g = gain
            if len(self.tracks) == 2:
                g *= math.sqrt((1 + (pan if channel else -pan)) / 2)
            for i in range(count):
                track[start + i] += sound[i] * g

    # -- sources ----------------------------------------------------------

    def noise(self, seconds):
        return [self.chance.uniform(-1, 1)
                for _ in range(int(seconds * self.rate))]

    def sine(self, freq, seconds):
        """A sine; freq may be a curve of (time, Hz) points."""
        way, phase, out = curve(freq), 0.0, []
        for i in range(int(seconds * self.rate)):
            out.append(math.sin(phase))
            phase += TAU * way(i / self.rate) / self.rate
        return out

    def struck(self, modes, seconds, attack=0.001):
        """Wood, metal, bells: (Hz, gain, time to fall to 1/1000) each."""
        count = int(seconds * self.rate)
        out = [0.0] * count
        for freq, gain, fall in modes:
            if freq > 0.45 * self.rate:
                continue
            # A decaying sine by recursion.
            r = 0.001 ** (1 / (fall * self.rate))
            w = TAU * freq / self.rate
            a, b = 2 * r * math.cos(w), r * r
            y2, y1 = 0.0, gain * math.sin(w) * r
            for i in range(1, count):
                out[i] += y1
                y1, y2 = a * y1 - b * y2, y1
        rise = max(1, int(attack * self.rate))
        for i in range(min(rise, count)):
            out[i] *= i / rise
        return out

    def blown(self, note, seconds, partials, attack=0.03, release=0.05,
              vibrato=0.0, speed=5.5, swell=0.0, bend=None, decay=0.0):
        """Horns, pipes, reeds: a tone of harmonic partials.  Bend is a curve
        of (time, semitones); decay is the fall in dB per second."""
        base, count = pitch(note), int(seconds * self.rate)
        top = base * 1.06
        size = 1024
        use = [(n, g) for n, g in enumerate(partials, 1)
               if g and n * top < 0.47 * self.rate]
        wave = [sum(g * math.sin(TAU * n * i / size + 0.7 * n * n)
                    for n, g in use) for i in range(size + 1)]
        soft = [use[0][1] * math.sin(TAU * use[0][0] * i / size
                                     + 0.7 * use[0][0] ** 2)
                for i in range(size + 1)]
        way = curve(bend) if bend else None
        phase, out = self.chance.random() * size, []
        for i in range(count):
            t = i / self.rate
            level = min(1.0, t / attack, (seconds - t) / release)
            level = level * level * (3 - 2 * level)
            bright = level * (1 - swell + swell * min(1.0, t / (0.6 * seconds)))
            at = int(phase)
            part = phase - at
            full = wave[at] + (wave[at + 1] - wave[at]) * part
            dull = soft[at] + (soft[at + 1] - soft[at]) * part
            out.append(level * 10 ** (-decay * t / 20)
                       * (dull + (full - dull) * bright))
            semis = way(t) if way else 0.0
            if vibrato:
                semis += vibrato * min(1.0, t / 0.25) * math.sin(TAU * speed * t)
            phase += base * 2 ** (semis / 12) * size / self.rate
            while phase >= size:
                phase -= size
        return out

    # -- treatment --------------------------------------------------------

    def shape(self, sound, points):
        """Multiply by an envelope."""
        level = curve(points)
        return [s * level(i / self.rate) for i, s in enumerate(sound)]

    def fall(self, sound, seconds):
        """Let the sound die away to 1/1000 in this time."""
        r, g, out = 0.001 ** (1 / (seconds * self.rate)), 1.0, []
        for s in sound:
            out.append(s * g)
            g *= r
        return out

    def filter(self, sound, kind, freq, q=0.7):
        """A state variable filter: "low", "band" or "high"."""
        way = curve(freq)
        s1 = s2 = 0.0
        out = []
        for i, x in enumerate(sound):
            if i % 16 == 0:
                f = min(way(i / self.rate), 0.45 * self.rate)
                g = math.tan(math.pi * f / self.rate)
                a = 1 / (1 + g * (g + 1 / q))
            v1 = a * (s1 + g * (x - s2))
            v2 = s2 + g * v1
            s1, s2 = 2 * v1 - s1, 2 * v2 - s2
            out.append(v2 if kind == "low" else v1 / q if kind == "band"
                       else x - v1 / q - v2)
        return out

    def room(self, gain, seconds, damp=0.35):
        """Put the whole mix into a room of this reverberation time."""
        for channel, track in enumerate(self.tracks):
            wet = [0.0] * self.frames
            for delay in (0.0297, 0.0371, 0.0411, 0.0437):
                size = int((delay + 0.0007 * channel) * self.rate)
                back = 0.001 ** (delay / seconds)
                line, at, low = [0.0] * size, 0, 0.0
                for i, x in enumerate(track):
                    y = line[at]
                    low += (y - low) * (1 - damp)
                    line[at] = x + low * back
                    at = at + 1 if at + 1 < size else 0
                    wet[i] += y
            for delay in (0.005, 0.0017):
                size = int((delay + 0.0003 * channel) * self.rate)
                line, at = [0.0] * size, 0
                for i, x in enumerate(wet):
                    y = line[at]
                    line[at] = x + 0.7 * y
                    wet[i] = y - 0.7 * line[at]
                    at = at + 1 if at + 1 < size else 0
            for i in range(self.frames):
                track[i] += gain * 0.25 * wet[i]

    def ending(self, seconds):
        """Let the whole mix fade away over the last seconds."""
        for track in self.tracks:
            count = int(seconds * self.rate)
            for i in range(count):
                part = i / count
                track[-1 - i] *= part * part * (3 - 2 * part)
