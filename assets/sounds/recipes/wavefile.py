"""WAV files of an exactly given size: PCM of 8 and 16 bits and Microsoft
ADPCM.  Where the data does not fill the size, a JUNK chunk does."""
import random
import struct

HEADER = 12 + 8 + 16 + 8          # RIFF, "fmt " of PCM, head of "data"
FIT = 0.005                       # seconds a sound may be stretched to fit

COEFFICIENTS = ((256, 0), (512, -256), (0, 0), (192, 64),
                (240, 0), (460, -208), (392, -232))
ADAPTATION = (230, 230, 230, 230, 307, 409, 512, 614,
              768, 614, 512, 409, 307, 230, 230, 230)


def block_align(channels, rate):
    return 256 * channels * max(1, rate // 11025)


def block_frames(channels, rate):
    return (block_align(channels, rate) - 7 * channels) * 2 // channels + 2


def frames_for(size, form, channels, rate, seconds):
    """How many frames the sound gets."""
    if form == "adpcm":           # whole blocks only
        per_block = block_frames(channels, rate)
        return round(seconds * rate / per_block) * per_block
    frames = (size - HEADER) // (channels * (2 if form == "pcm16" else 1))
    if abs(frames / rate - seconds) > FIT:
        frames = round(seconds * rate)
    return frames


def chunk(name, body):
    return struct.pack("<4sI", name, len(body)) + body + b"\0" * (len(body) % 2)


def write(path, tracks, size, form, rate, seed):
    channels = len(tracks)
    if form == "adpcm":
        data = adpcm(tracks, rate)
        align = block_align(channels, rate)
        per_block = block_frames(channels, rate)
        head = chunk(b"fmt ", struct.pack(
            "<HHIIHHHHH", 2, channels, rate, rate * align // per_block, align,
            4, 32, per_block, len(COEFFICIENTS)) + b"".join(
                struct.pack("<hh", *pair) for pair in COEFFICIENTS))
        head += chunk(b"fact", struct.pack("<I", len(tracks[0])))
    else:
        data = pcm16(tracks) if form == "pcm16" else pcm8(tracks, rate, seed)
        width = 2 if form == "pcm16" else 1
        head = chunk(b"fmt ", struct.pack(
            "<HHIIHH", 1, channels, rate, rate * channels * width,
            channels * width, 8 * width))
    data = chunk(b"data", data)
    missing = size - 12 - len(head) - len(data)
    if missing:
        if missing < 8 or missing % 2:
            raise ValueError("%s: cannot fill %d bytes" % (path, missing))
        head += chunk(b"JUNK", bytes(missing - 8))
    body = b"WAVE" + head + data
    with open(path, "wb") as out:
        out.write(struct.pack("<4sI", b"RIFF", len(body)) + body)


def pcm16(tracks):
    return b"".join(struct.pack("<h", round(sample * 32767))
                    for frame in zip(*tracks) for sample in frame)


def pcm8(tracks, rate, seed):
    """8 bits with a quiet triangular dither that follows the sound, so that
    silence stays silent."""
    chance = random.Random("dither " + seed)
    out = bytearray()
    level = 0.0
    fall = 0.5 ** (1 / (0.05 * rate))
    for frame in zip(*tracks):
        for sample in frame:
            level = max(abs(sample) * 127, level * fall)
            noise = 0.5 * min(1.0, level) * (chance.random() - chance.random())
            out.append(max(0, min(255, 128 + round(sample * 127 + noise))))
    return bytes(out)


def adpcm(tracks, rate):
    channels = len(tracks)
    step = block_frames(channels, rate)
    pcm = [[round(s * 32767) for s in track] for track in tracks]
    out = bytearray()
    for start in range(0, len(pcm[0]), step):
        packs = [best_pack(track[start:start + step]) for track in pcm]
        out += bytes(p[1] for p in packs)
        for field in (2, 3, 4):   # step width, second sample, first sample
            out += b"".join(struct.pack("<h", p[field]) for p in packs)
        nibbles = [n for frame in zip(*(p[5] for p in packs)) for n in frame]
        out += bytes(a << 4 | b for a, b in zip(nibbles[::2], nibbles[1::2]))
    return bytes(out)


def best_pack(samples):
    """Encode a block of one channel with every predictor, keep the best."""
    best = None
    for index, (c1, c2) in enumerate(COEFFICIENTS):
        first = sum(abs(samples[i] - ((samples[i - 1] * c1
                                       + samples[i - 2] * c2) >> 8))
                    for i in range(2, 7)) // 15
        for width in {max(16, first), max(16, 3 * first)}:
            width = min(width, 32767)
            error, nibbles = pack(samples, c1, c2, width)
            if best is None or error < best[0]:
                best = (error, index, width, samples[1], samples[0], nibbles)
    return best


def pack(samples, c1, c2, width):
    older, newer = samples[0], samples[1]
    error, nibbles = 0, []
    for sample in samples[2:]:
        guess = (newer * c1 + older * c2) >> 8
        code = max(-8, min(7, round((sample - guess) / width)))
        older = newer
        newer = max(-32768, min(32767, guess + code * width))
        error += (sample - newer) ** 2
        code &= 15
        nibbles.append(code)
        width = max(16, ADAPTATION[code] * width >> 8)
    return error, nibbles
