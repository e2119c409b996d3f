#pragma once

#include "HelpViewer.h"
#include "MessageBox.h"
#include "PictureBox.h"
#include "RandomDraw.h"
#include "Score.h"
#include "Settings.h"
#include "SettingsStore.h"
#include "SoundDevice.h"
#include "folders.h"

#include <QPixmap>
#include <QString>

#include <array>

/// What the game needs of the outside world. All of it must outlive the main window.
struct Services {
  RandomDraw &draw;
  SoundDevice &sound;
  SettingsStore &store;
  MessageBox &messages;
  HelpViewer &help;
};

/// The sounds, complete WAV files.
struct Sounds {
  Klang SndMuell, SndBoot, SndAlle, SndStart, SndWasser, SndDoppelt, SndTreffer, SndVersenkt,
      SndSieg, SndVerloren;

  /// The sounds that the program carries inside.
  static Sounds load();
};

/// What the start-up fills and the windows share.
struct Globals {
  QString ScorePath; ///< `Score.hsc`, the top ten
  QString HelpPath;  ///< `Hilfe.qch`, the help file
  Folders folders{{}};
  Sounds sounds;
  std::array<QPixmap, 2> MuellIcon; ///< the dustbin: 0 grey, 1 red
  QPixmap background;               ///< of the main window
  Sprites sprites;
  Settings settings;
  Score score{{}}; ///< the top ten
};
