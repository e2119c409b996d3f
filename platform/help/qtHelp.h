#pragma once

#if __has_include(<QHelpEngine>)
#include <QHelpContentWidget>
#include <QHelpEngine>
#include <QHelpIndexModel>
#include <QHelpLink>
#else
#include "reader.h"
#endif
