#include "SdlSound.h"

#include <memory>

extern "C" Q_DECL_EXPORT SoundDevice *korvelService() {
  return std::make_unique<SdlSound>().release();
}
