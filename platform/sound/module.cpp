#include "SdlSound.h"
#include "late.h"

KORVEL_LATE_SERVICE(SoundDevice, SdlSound)
