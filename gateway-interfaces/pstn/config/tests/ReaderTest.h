#pragma once

#include <cctype>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include <libxml/parser.h>

#include <velquin/XML.h>

#include "ConfigTest.h"

// What the tests of readers share. Expected lines are composed from what differs: the reader, its words, the element
// and the attribute.

namespace Velquin::Pstn::Test {

constexpr const char* DECIMAL = "The value must be a decimal number.";

/// A reader by its model class, and the words between attribute and element in its messages.
struct Reader {
    Reader( const std::string& in_strModel, std::string in_strMissing, std::string in_strInvalid = "" )
        : strName( in_strModel + "XmlSerializer" ),
          strMissing( std::move( in_strMissing ) ),
          strInvalid( in_strInvalid.empty() ? strMissing : std::move( in_strInvalid ) ) {}

    std::string strName;
    std::string strMissing;
    std::string strInvalid;
};

/// A case of edits that are refused.
inline LoadCase refused( std::string in_strName, std::vector<Edit> in_vecEdits, std::vector<std::string> in_vecLines ) {
    return { std::move( in_strName ), std::move( in_vecEdits ), false, std::move( in_vecLines ) };
}

inline std::string assertion( const std::string& in_strExpression, const std::string& in_strFile ) {
    return "ERROR marovane.core.Assertion: Assertion failed: " + in_strExpression + ", file " + in_strFile + ", line N";
}

/// @param in_strPart stands in the tag of the element; without it, the element is that of the last edit
inline std::string declared( const std::string& in_strElement, const std::string& in_strPart = "" ) {
    return in_strElement + " declared in file {file} at line {line" + ( in_strPart.empty() ? "" : ":" + in_strPart ) +
           "}";
}

/// The name of the element in a path that ends with an attribute.
inline std::string getElement( const std::string& in_strPath ) {
    const std::string strElement = in_strPath.substr( 0, in_strPath.rfind( '/' ) );
    const std::string strName = strElement.substr( strElement.rfind( '/' ) + 1 );
    return strName.substr( 0, strName.find( '[' ) );
}

inline std::string missing( const Reader& in_reader, const std::string& in_strPath,
                            const std::string& in_strPart = "" ) {
    return "ERROR " + in_reader.strName + ": Missing attribute " + in_strPath + in_reader.strMissing +
           declared( getElement( in_strPath ), in_strPart ) + ". ";
}

inline std::string invalid( const Reader& in_reader, const std::string& in_strPathAndValue,
                            const std::string& in_strHint ) {
    return "ERROR " + in_reader.strName + ": Invalid attribute  [" + in_strPathAndValue + in_reader.strInvalid +
           declared( getElement( in_strPathAndValue ) ) + ". " + in_strHint;
}

/// What the loader adds, for instance to a "board tirvanaDigitalBoard".
inline std::string containsErrors( const std::string& in_strSubject, const std::string& in_strPart = "" ) {
    return "ERROR XmlConfig: Configuration of the " + declared( in_strSubject, in_strPart ) +
           " contains one ore more errors. ";
}

/// An element whose attributes are tried.
struct Subject {
    /// @param in_strPart stands in the complete document once, in the element's tag
    Subject( std::string in_strName, const std::string& in_strPart, std::string in_strPath,
             std::vector<std::string> in_vecAfter )
        : strName( std::move( in_strName ) ), strPath( std::move( in_strPath ) ), vecAfter( std::move( in_vecAfter ) ) {
        const std::string strDocument = TestDocument().getText();
        const std::size_t uBegin = strDocument.rfind( '<', strDocument.find( in_strPart ) );
        strTag = strDocument.substr( uBegin, strDocument.find( '>', uBegin ) + 1 - uBegin );
    }

    std::string strName; ///< as the names of the cases begin
    std::string strTag;
    std::string strPath;
    std::vector<std::string> vecAfter; ///< the lines of those that asked the reader
};

/// Cases in which one attribute is missing or wrong, called after subject, attribute and fault: BoardIdMissing,
/// BoardIdWrong.
/// @param in_strAttributes "ID# ?pciSlot#-1 model mode=A|B": ID is required and refused with the hint when it is wrong,
///        pciSlot is optional and -1 is wrong, model takes any text, mode asserts that it is A or B
inline std::vector<LoadCase> attributeCases( const Subject& in_subject, const Reader& in_reader,
                                             const std::string& in_strAttributes,
                                             const std::string& in_strHint = DECIMAL ) {
    std::vector<LoadCase> vecCases;
    std::istringstream attributes( in_strAttributes );
    for ( std::string strItem; attributes >> strItem; ) {
        const bool bOptional = strItem[0] == '?';
        const std::size_t uKind = std::min( strItem.find_first_of( "#=" ), strItem.size() );
        const std::string strAttribute = strItem.substr( bOptional, uKind - bOptional );
        const std::string strPath = in_subject.strPath + "/" + strAttribute;
        const std::size_t uBegin = in_subject.strTag.find( " " + strAttribute + "=\"" );
        const std::size_t uValue = uBegin + strAttribute.size() + 3;
        const std::size_t uEnd = in_subject.strTag.find( '"', uValue );
        EXPECT_NE( uBegin, std::string::npos ) << strAttribute << " in " << in_subject.strTag;
        std::string strName = in_subject.strName + strAttribute;
        strName[in_subject.strName.size()] = static_cast<char>( std::toupper( strAttribute[0] ) );
        for ( std::size_t u; ( u = strName.find( "ID" ) ) != std::string::npos; )
            strName[u + 1] = 'd';
        const auto add = [&]( const char* in_szFault, const std::string& in_strTag, const std::string& in_strLine ) {
            std::vector<std::string> vecLines{ in_strLine };
            vecLines.insert( vecLines.end(), in_subject.vecAfter.begin(), in_subject.vecAfter.end() );
            vecCases.push_back( refused( strName + in_szFault, { { in_subject.strTag, in_strTag } }, vecLines ) );
        };
        if ( !bOptional )
            add( "Missing", std::string( in_subject.strTag ).erase( uBegin, uEnd + 1 - uBegin ),
                 missing( in_reader, strPath ) );
        if ( uKind == strItem.size() )
            continue;
        std::string strWrong = strItem.substr( uKind + 1 );
        std::string strLine;
        if ( strItem[uKind] == '=' ) {
            std::istringstream keywords( std::exchange( strWrong, "none of them" ) );
            for ( std::string strKeyword; std::getline( keywords, strKeyword, '|' ); )
                strLine += ( strLine.empty() ? "" : " || " ) + strAttribute + " == \"" + strKeyword + "\"";
            strLine = assertion( strLine, in_reader.strName );
        } else {
            strWrong = strWrong.empty() ? "x#1" : strWrong;
            strLine = invalid( in_reader, strPath + "=" + strWrong, in_strHint );
        }
        add( "Wrong", std::string( in_subject.strTag ).replace( uValue, uEnd - uValue, strWrong ), strLine );
    }
    return vecCases;
}

/// All cases of several tables.
inline std::vector<LoadCase> gather( const std::vector<std::vector<LoadCase>>& in_vecTables ) {
    std::vector<LoadCase> vecCases;
    for ( const auto& vecTable : in_vecTables )
        vecCases.insert( vecCases.end(), vecTable.begin(), vecTable.end() );
    return vecCases;
}

/// A case of a serializer that gets or makes an object of the wrong class, or none.
/// @param in_yieldsNull calls it
template <class TXmlSerializer>
CallCase misused( const std::string& in_strExpression, const std::function<bool()>& in_yieldsNull,
                  const char* in_szHow = "WithWrongClass" ) {
    const std::string strName = TXmlSerializer::getMemAccountName();
    return { strName + in_szHow,
             [in_yieldsNull] { EXPECT_TRUE( in_yieldsNull() ); },
             { assertion( in_strExpression, strName ) } };
}

/// The root element of a document of its own, for serializers that are called without a load.
class Element {
public:
    explicit Element( const std::string& in_strText )
        : m_pDocument(
              xmlReadMemory( in_strText.c_str(), static_cast<int>( in_strText.size() ), nullptr, nullptr, 0 ) ) {}

    xmlNode* get() const { return xmlDocGetRootElement( m_pDocument.get() ); }

private:
    struct Deleter {
        void operator()( xmlDoc* in_pDocument ) const { xmlFreeDoc( in_pDocument ); }
    };
    std::unique_ptr<xmlDoc, Deleter> m_pDocument;
};

/// A new object; null for no class.
template <class TBase, class T>
TBase* makeSome() {
    if constexpr ( std::is_void_v<T> )
        return nullptr;
    else
        return new T();
}

/// What a handle holds, as an object of its class.
template <class T, class THandle>
const T& as( const THandle& in_handle ) {
    return dynamic_cast<const T&>( *in_handle );
}

} // namespace Velquin::Pstn::Test
