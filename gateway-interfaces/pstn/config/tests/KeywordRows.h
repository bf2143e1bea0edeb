#pragma once

#include <string>
#include <utility>
#include <vector>

#include "ConfigTest.h"

namespace Velquin::Pstn::Test {

/// An attribute that takes keywords; see data/keywords.rows.
struct KeywordRow {
    std::string strTable;
    std::string strPath; ///< end of the path of its element, the first of which counts
    std::string strAttribute;
    std::vector<std::pair<std::string, int>> vecKeywords; ///< and the values they stand for
    std::string strLine;                                  ///< of the model's text, up to the value
    std::vector<Edit> vecNeeds;                           ///< what the document needs for these keywords
    std::string strOtherLine;                             ///< with any other text; empty when that is refused
    bool bReported = true;                                ///< whether any other text is
};

/// All attributes of the format whose keywords stand in tables; one that needs different documents has several rows.
std::vector<KeywordRow> getKeywordRows();

} // namespace Velquin::Pstn::Test
