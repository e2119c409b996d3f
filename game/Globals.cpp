#include "Globals.h"

#include "sounds.h"

Sounds Sounds::load() {
  return {.SndMuell = loadSound("muell"),
          .SndBoot = loadSound("boot"),
          .SndAlle = loadSound("alle"),
          .SndStart = loadSound("start"),
          .SndWasser = loadSound("wasser"),
          .SndDoppelt = loadSound("doppelt"),
          .SndTreffer = loadSound("treffer"),
          .SndVersenkt = loadSound("versenkt"),
          .SndSieg = loadSound("sieg"),
          .SndVerloren = loadSound("verloren")};
}
