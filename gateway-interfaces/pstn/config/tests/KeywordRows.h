#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "ConfigTest.h"

namespace Velquin::Pstn::Test {

/// An attribute that takes keywords.
struct KeywordRow {
    std::string strPath; ///< end of the path of its element, the first of which counts
    std::string strAttribute;
    std::vector<std::pair<std::string, int>> vecKeywords; ///< and the values they stand for
    std::function<int( const XmlConfig& )> get;           ///< the value, asked of the first element of that path
    std::vector<Edit> vecNeeds = {};                      ///< what the document needs for these keywords
    std::string strInNeed = {};                           ///< the only keyword that needs it, if there is but one
    int nUnknown = REFUSED;                               ///< what another text stands for; below 0 it is reported

    static constexpr int REFUSED = -2;
};

/// All attributes of the format whose keywords stand in tables.
std::vector<KeywordRow> getKeywordRows();

} // namespace Velquin::Pstn::Test
