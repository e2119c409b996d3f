#pragma once

#include "HelpViewer.h"
#include "SoundDevice.h"

#include <QString>

#include <memory>

/// Services in modules of their own, shared libraries beside the executable, which are loaded when
/// they are first needed: the libraries behind them are many, and loading those would slow the
/// start. A module that can't be loaded leaves the game without sound, or without help.
///
/// A module exports `extern "C" Interface *korvelService()`, which makes its service for the caller
/// to own.

/// The `korvelService` of a module in the folder of the executable; null if it can't be loaded.
QFunctionPointer serviceOf(const QString &module);

/// A service that is loaded once, by its first use.
template <typename Interface>
class Late {
public:
  explicit Late(const QString &module) : module_(module) {}

  /// Null if it can't be loaded.
  Interface *get() {
    if (!wasTried_)
      if (const auto make = reinterpret_cast<Interface *(*)()>(serviceOf(module_)))
        service_.reset(make());
    wasTried_ = true;
    return service_.get();
  }
  /// Null as long as it is not loaded.
  Interface *loaded() const { return service_.get(); }

private:
  QString module_;
  bool wasTried_ = false;
  std::unique_ptr<Interface> service_;
};

/// The sound of the module `klang`.
class LateSound : public SoundDevice {
public:
  bool open() override;
  void start(const Klang &klang) override;
  bool playToEnd(const Klang &klang) override;

private:
  Late<SoundDevice> device_{"klang"};
};

/// The help window of the module `hilfe`.
class LateHelp : public HelpViewer {
public:
  QString show(const QString &file, Entry entry) override;
  void close() override;

private:
  Late<HelpViewer> viewer_{"hilfe"};
};
