// Compares a document as the library keeps it with the document that libxml2 makes by itself.

#include <string>
#include <string_view>

#include <libxml/parser.h>

#include <velquin/Logger.h>
#include <velquin/XML.h>

#include "ErrorCount.h"
#include "FuzzTarget.h"
#include "QuietLog.h"
#include "TemporaryFile.h"
#include "document/DocumentBuilder.h"
#include "document/Element.h"
#include "document/LibXml2.h"
#include "document/XmlDocumentReader.h"

using namespace Velquin::Pstn;

namespace {

/// What a document says, without what readers don't see: comments, processing instructions, and how a text is cut.
class Description {
public:
    /// @param in_bBlanks whether blanks count
    Description( const xmlNode* in_pRoot, bool in_bBlanks ) : m_bBlanks( in_bBlanks ) { describe( in_pRoot ); }
    const std::string& get() const { return m_strAll; }

private:
    void describe( const xmlNode* in_pElement ) {
        m_strAll.append( "<" ).append( describeName( in_pElement->name, in_pElement->ns ) );
        m_strAll.append( "@" ).append( std::to_string( getElementLine( in_pElement ) ) );
        for ( const xmlNs* pNs = in_pElement->nsDef; pNs; pNs = pNs->next )
            m_strAll.append( " xmlns:" ).append( fromXml( pNs->prefix ) ).append( "=" ).append( fromXml( pNs->href ) );
        for ( xmlAttr* pAttribute = in_pElement->properties; pAttribute; pAttribute = pAttribute->next ) {
            const XmlStringPtr pValue( xmlNodeListGetString( in_pElement->doc, pAttribute->children, 1 ) );
            m_strAll.append( " " ).append( describeName( pAttribute->name, pAttribute->ns ) );
            m_strAll.append( "=" ).append( fromXml( pValue.get() ) );
        }
        m_strAll += ">";
        for ( const xmlNode* pChild = in_pElement->children; pChild; pChild = pChild->next ) {
            if ( pChild->type == XML_ELEMENT_NODE )
                describe( pChild );
            else if ( pChild->type == XML_TEXT_NODE || pChild->type == XML_CDATA_SECTION_NODE )
                describeText( fromXml( pChild->content ) );
        }
        m_strAll += "</>";
    }

    static std::string describeName( const xmlChar* in_szName, const xmlNs* in_pNs ) {
        return std::string( in_pNs ? fromXml( in_pNs->href ) : "" ) + ":" + fromXml( in_szName );
    }

    void describeText( const std::string& in_strText ) {
        for ( const char c : in_strText )
            m_strAll.append( !m_bBlanks && std::string_view( " \t\r\n" ).find( c ) != std::string_view::npos ? 0 : 1,
                             c );
    }

    bool m_bBlanks;
    std::string m_strAll;
};

/// Whether libxml2 leaves out blanks in a way on which all of its functions and ours agree.
bool areBlanksPlain( const std::uint8_t* in_pData, std::size_t in_uSize ) {
    const std::string strText( in_pData, in_pData + in_uSize );
    for ( const char* const szMark : { "<!", "<?", "space" } ) {
        if ( strText.find( szMark ) != std::string::npos )
            return false;
    }
    return true;
}

} // namespace

int LLVMFuzzerTestOneInput( const std::uint8_t* in_pData, std::size_t in_uSize ) {
    static const QuietLog s_log( log4cplus::WARN_LOG_LEVEL );
    static const Velquin::Logger s_logger( "document" );
    static const Fuzz::TemporaryFile s_document( "document.xml" );
    const Velquin::XML::LibraryScope library;
    s_document.write( in_pData, in_uSize );
    const bool bBlanks = areBlanksPlain( in_pData, in_uSize );

    std::size_t uBuilders = 0;
    std::size_t uRead = 0;
    for ( const DocumentBuilder eBuilder : { DocumentBuilder::NATIVE, DocumentBuilder::BLOCKS } ) {
        if ( !setDocumentBuilder( eBuilder ) )
            continue;
        ++uBuilders;
        const Fuzz::ErrorCount errors;
        const XmlDocumentPtr pDocument = readXmlDocument( s_document.getPath(), s_logger );
        Fuzz::require( !pDocument == ( errors.get() > 0 ), "a document is read when nothing is wrong with it" );
        if ( !pDocument )
            continue;
        ++uRead;
        const XmlDocPtr pExpected(
            xmlReadFile( s_document.getPath(), nullptr,
                         XML_PARSE_NONET | XML_PARSE_NOBLANKS | XML_PARSE_NOERROR | XML_PARSE_NOWARNING ) );
        Fuzz::require( pExpected != nullptr, "what is read is well-formed" );
        const std::string strExpected = Description( xmlDocGetRootElement( pExpected.get() ), bBlanks ).get();
        Fuzz::require( Description( pDocument->getRoot(), bBlanks ).get() == strExpected,
                       "both documents say the same" );
        // The copy has libxml2's own lines.
        const XmlDocPtr pCopy( xmlCopyDoc( pDocument->get(), 1 ) );
        Fuzz::require( Description( xmlDocGetRootElement( pCopy.get() ), bBlanks ).get() == strExpected,
                       "so does a copy" );
    }
    Fuzz::require( uRead == 0 || uRead == uBuilders, "each builder reads what the other reads" );
    return 0;
}
