#include "SdlSound.h"

#include <memory>

extern "C" Q_DECL_EXPORT SoundDevice *korvelSound() {
  return std::make_unique<SdlSound>().release();
}
