#pragma once

/// Makes every scale factor of the windows a whole number, 1 or more, also one that the user sets
/// in the environment (`QT_SCALE_FACTOR`, `QT_SCREEN_SCALE_FACTORS`): at others the lines of a grid
/// would differ in thickness. Call it before the `QApplication` is made.
void keepScalesWhole();
