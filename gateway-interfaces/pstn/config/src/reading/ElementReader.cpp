#include "reading/ElementReader.h"

#include <utility>

#include <velquin/Assertion.h>
#include <velquin/XML.h>

#include "reading/EntryListener.h"

namespace Velquin::Pstn {

namespace {

void locateElement( const xmlNode* in_pElement, Finding& inout_finding ) {
    if ( inout_finding.strFile.empty() )
        inout_finding.strFile = getElementFile( in_pElement );
    if ( inout_finding.ullLine == 0 )
        inout_finding.ullLine = getElementLine( in_pElement );
    if ( inout_finding.strElementPath.empty() )
        inout_finding.strElementPath = getElementPath( in_pElement );
    if ( inout_finding.ullElement == 0 )
        inout_finding.ullElement = getElementNumber( in_pElement );
}

/// The place of an assertion about one attribute.
class AttributePlace : public FindingPlace {
public:
    AttributePlace( const xmlNode* in_pElement, const char* in_szAttribute, std::string_view in_strValue,
                    std::span<const std::string_view> in_aKeywords ) noexcept
        : m_pElement( in_pElement ),
          m_szAttribute( in_szAttribute ),
          m_strValue( in_strValue ),
          m_aKeywords( in_aKeywords ) {}

    void locate( Finding& inout_finding ) const override {
        locateElement( m_pElement, inout_finding );
        inout_finding.eKind = Finding::Kind::INVALID_VALUE;
        inout_finding.strRule = Rules::INVALID_VALUE;
        inout_finding.strAttribute = m_szAttribute;
        inout_finding.strValue = m_strValue;
        inout_finding.strHint = describeValues( m_aKeywords );
    }

private:
    const xmlNode* m_pElement;
    const char* m_szAttribute;
    std::string_view m_strValue;
    std::span<const std::string_view> m_aKeywords;
};

} // namespace

bool AttributeReader::passOver() {
    EntryListener* const pListener = EntryListener::getCurrent();
    return pListener && pListener->passOver();
}

bool AttributeReader::findText( const char* in_szAttribute, AttributeText& out_text ) const {
    return findAttribute( m_pElement, in_szAttribute, out_text );
}

bool AttributeReader::has( const char* in_szAttribute ) const {
    AttributeText text;
    return findText( in_szAttribute, text );
}

bool AttributeReader::requireText( const char* in_szAttribute, AttributeText& out_text ) const {
    if ( findText( in_szAttribute, out_text ) )
        return true;
    reportMissing( in_szAttribute );
    return false;
}

xmlNode* AttributeReader::requireChild( const char* in_szName ) const {
    xmlNode* const pChild = XML::findFirstElement( m_pElement, in_szName );
    if ( !pChild )
        reportMissingChild( in_szName );
    return pChild;
}

void AttributeReader::reportMissing( const char* in_szAttribute, std::string in_strAdvice ) const {
    Finding finding;
    finding.eKind = Finding::Kind::MISSING_ATTRIBUTE;
    finding.strRule = Rules::MISSING_ATTRIBUTE;
    finding.strAttribute = in_szAttribute;
    finding.strHint = std::move( in_strAdvice );
    reportMissing( std::move( finding ), in_szAttribute );
}

void AttributeReader::reportMissingChild( std::string_view in_strName, const char* in_szReportedName ) const {
    Finding finding;
    finding.eKind = Finding::Kind::MISSING_ELEMENT;
    finding.strRule = Rules::MISSING_ELEMENT;
    finding.strAttribute = in_strName;
    const std::string strName = in_szReportedName ? in_szReportedName : finding.strAttribute;
    reportMissing( std::move( finding ), strName.c_str() );
}

void AttributeReader::reportMissing( Finding in_finding, const char* in_szReportedName ) const {
    const std::string strMiddle = in_szReportedName + std::string( m_pWording->strMissingNoun );
    report( std::move( in_finding ), m_pWording->strMissingLead, strMiddle, m_pWording->strMissingTail );
}

void AttributeReader::reportInvalid( const RefusedValue& in_refused, std::string_view in_strHint ) const {
    Finding finding;
    const bool bUnknown = std::string_view( in_refused.szRule ) == Rules::UNKNOWN_ATTRIBUTE;
    finding.eKind = bUnknown ? Finding::Kind::UNKNOWN_ATTRIBUTE : Finding::Kind::INVALID_VALUE;
    finding.strRule = in_refused.szRule;
    finding.strAttribute = in_refused.szAttribute;
    finding.strValue = in_refused.strValue;
    finding.strHint = in_refused.strAdvice.empty() ? in_strHint : in_refused.strAdvice;
    const char* const szName = in_refused.szReportedName ? in_refused.szReportedName : in_refused.szAttribute;
    const std::string strMiddle = szName + ( "=" + finding.strValue ) + std::string( m_pWording->strInvalidNoun );
    report( std::move( finding ), m_pWording->strInvalidLead, strMiddle, ". " + std::string( in_strHint ) );
}

void AttributeReader::report( Finding in_finding, std::string_view in_strLead, std::string_view in_strMiddle,
                              std::string_view in_strTail ) const {
    in_finding.strElementPath = getElementPath( m_pElement );
    in_finding.strText.append( in_strLead )
        .append( in_finding.strElementPath )
        .append( "/" )
        .append( in_strMiddle )
        .append( getName() );
    const std::string strSubject = std::move( in_finding.strText );
    reportDeclared( strSubject, in_strTail, std::move( in_finding ) );
}

void AttributeReader::reportDeclared( std::string_view in_strSubject, std::string_view in_strTail,
                                      Finding in_finding ) const {
    locateElement( m_pElement, in_finding );
    in_finding.strText = in_strSubject;
    in_finding.strMessage = in_finding.strText + std::string( in_strTail );
    in_finding.strText.append( " declared in file " )
        .append( in_finding.strFile )
        .append( " at line " )
        .append( std::to_string( in_finding.ullLine ) )
        .append( in_strTail );
    reportFinding( *m_pLogger, std::move( in_finding ), __FILE__, __LINE__ );
}

void AttributeReader::assertKeyword( const char* in_szAttribute, std::string_view in_strValue,
                                     std::span<const std::string_view> in_aKeywords, SourcePlace in_where ) const {
    std::string strExpression;
    for ( const std::string_view strKeyword : in_aKeywords ) {
        strExpression.append( strExpression.empty() ? "" : " || " ).append( in_szAttribute );
        strExpression.append( " == \"" ).append( strKeyword ).append( "\"" );
    }
    const AttributePlace place( m_pElement, in_szAttribute, in_strValue, in_aKeywords );
    const Assertion assertion( false, strExpression.c_str(), in_where.szFile, in_where.nLine );
}

void ElementPlace::locate( Finding& inout_finding ) const {
    if ( inout_finding.strElementPath.empty() )
        inout_finding.strElementPath = m_strPath;
    locateElement( m_pElement, inout_finding );
}

} // namespace Velquin::Pstn
