// Unit uQzLogLayouts: messages as text.
#pragma once

// TQzSimpleLayout: a line of text.
#include "common/uQzLogLayouts/SimpleLayout.h"
// TQzXmlLayout: an XML document that a browser
// shows as a table.
#include "common/uQzLogLayouts/XmlLayout.h"
