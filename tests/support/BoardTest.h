#pragma once

#include "GridProbe.h"
#include "RecordingSurface.h"
#include "ScriptedDraw.h"

#include <gtest/gtest.h>

/// A board, at first of size 1, whose surfaces write down what is drawn.
struct BoardTest : testing::Test {
  ScriptedDraw draw;
  clsGrid grid{draw};
  GridProbe probe{grid};
  Calls calls;
  RecordingSurface left{"left", calls};
  RecordingSurface right{"right", calls};

  BoardTest() {
    grid.setPicComputer(right);
    grid.setPicPlayer(left);
    grid.ResetFields();
  }
  void start(int size) {
    grid.setSize(size);
    grid.ResetFields();
    calls.clear();
  }
};
