#pragma once

#include "host/plot/plot.h"

#include <QtCore/QByteArray>

/// The pages as a PDF, by a short program that hands each primitive to the painter as it is: no fonts of its
/// own choice, no dashes of its own, wide lines of their first width.
QByteArray PaintPlainly(const std::vector<CPlotPage>& arPages);
