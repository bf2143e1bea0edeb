#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <velquin/Finding.h>

#include "document/LibXml2.h"
#include "document/SyntaxFaults.h"

namespace Velquin::Pstn {

/// The text of a file in UTF-8: where its tags and attributes stand, and its lines.
class SourceText {
public:
    /// Where somebody wants to know the place of an element or of one of its attributes.
    struct Place {
        unsigned long long ullElement; ///< number of the element, from 1
        std::string_view strAttribute; ///< empty for the element
        SourceSpan* pSpan;      ///< set to the attribute, name to closing quote, or to `<` and the element's name
        SourceSpan* pValueSpan; ///< set to the value without its quotes; null when nobody wants it
        bool bText = false;     ///< whether the place is that of a text in the element, of the first, the second ...
    };

    /// Reads the file. When that fails, the text stays empty.
    /// @param in_szEncoding the encoding that the document declares; null when nobody knows
    void read( const char* in_szPath, const char* in_szEncoding );

    /// Finds the places in one pass. The file must be well-formed. A place that isn't found keeps its spans; an absent
    /// attribute or text gets the span of its element.
    void locate( std::vector<Place> in_vecPlaces ) const;

    /// Says of an ill-formed file what is wrong with it and what to do, at the place where the mistake begins. Keeps
    /// what the finding says when the text doesn't show the mistake.
    void explain( Finding& inout_finding ) const;

    /// A line without its end; empty when there is no such line.
    std::string_view getLine( unsigned long long in_ullLine ) const noexcept;

private:
    void convert();
    bool isMarkup( std::size_t in_uBegin ) const;
    SourceSpan getSpan( std::size_t in_uBegin, std::size_t in_uEnd ) const;
    std::size_t locateTag( std::size_t in_uBegin, const Place* in_pFirst, const Place* in_pEnd ) const;
    void locateText( std::size_t in_uBegin, std::string_view in_strEnd, unsigned long long in_ullElement,
                     std::vector<Place>& inout_vecPlaces ) const;
    std::size_t skipBlanks( std::size_t in_uFrom ) const;
    std::size_t skipMarkup( std::size_t in_uBegin ) const;

    std::string m_strText;
    std::string m_strEncoding; ///< that the document declares; empty for none
    bool m_bUtf16 = false;
    std::size_t m_uConverted = std::string::npos; ///< where bytes begin that aren't in that encoding
    std::vector<std::size_t> m_vecLines;          ///< where each line begins
    mutable struct {
        std::size_t uOffset = 0;
        std::size_t uColumn = 1;
    } m_counted; ///< the last place whose column was counted
};

} // namespace Velquin::Pstn
