#pragma once

#include "document/layout.h"

#include <vector>

namespace levora::document {

class XmlNode;

// Reads one element of a block and appends what it stands for; most stand for one thing, a cell or a
// tick box for several. A Failure 321 for an unknown one.
void read_element(XmlNode& node, std::vector<Element>& elements);

} // namespace levora::document
