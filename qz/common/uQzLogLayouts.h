// Unit uQzLogLayouts: layouts, which format messages.
#pragma once

// TQzSimpleLayout: a line of text.
#include <qz/common/uQzLogLayouts/SimpleLayout.h>
// TQzXmlLayout: an XML document that a browser shows as a table.
#include <qz/common/uQzLogLayouts/XmlLayout.h>
