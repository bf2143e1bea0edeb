#include "document/StrayText.h"

#include <algorithm>

#include "document/SyntaxCharacters.h"

namespace Velquin::Pstn {

StrayText explainStrayText( std::string_view in_strText, const std::vector<std::string>& in_vecNames,
                            const std::vector<std::string>& in_vecMissing ) {
    const std::size_t uBegin = std::min( in_strText.find_first_not_of( XML_BLANKS ), in_strText.size() );
    const std::string strWord( in_strText.substr( uBegin, in_strText.find_first_of( " \t\r\n=/>", uBegin ) - uBegin ) );
    if ( std::find( in_vecNames.begin(), in_vecNames.end(), strWord ) != in_vecNames.end() )
        return { strWord, "a < is missing in front of " + strWord };
    const bool bOfTag = in_strText.find( "=\"" ) != std::string_view::npos ||
                        in_strText.find( "='" ) != std::string_view::npos ||
                        in_strText.find( "/>" ) != std::string_view::npos;
    if ( !bOfTag )
        return { {}, "remove it: this format has attributes and elements only" };
    const std::string strRest = "this seems to be the rest of a tag: write what is missing in front of it";
    return in_vecMissing.size() == 1 ? StrayText{ in_vecMissing[0], strRest + ", from <" + in_vecMissing[0] + " on" }
                                     : StrayText{ {}, strRest + ", or remove it" };
}

} // namespace Velquin::Pstn
