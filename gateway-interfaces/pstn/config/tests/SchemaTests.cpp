#include <filesystem>
#include <regex>

#include "ConfigTest.h"
#include "reading/ChildElements.h"

// The schema of the format: it agrees with the library's keywords and with the examples, and stops what the readers
// would pass over.

namespace Velquin::Pstn::Test {

namespace {

std::string getAttribute( xmlNode* in_pElement, const char* in_szName ) {
    return fromXml( XmlStringPtr( xmlGetProp( in_pElement, toXml( in_szName ) ) ).get() );
}

XmlDocPtr parse( const std::string& in_strFile ) {
    XmlDocPtr pDocument( xmlReadFile( in_strFile.c_str(), nullptr, XML_PARSE_NONET ) );
    EXPECT_TRUE( pDocument ) << in_strFile;
    return pDocument;
}

/// What a schema, or a document, says of its elements and attributes: "/a/b" and "/a/b/@c".
class Format {
public:
    explicit Format( const char* in_szSchema ) : m_pDocument( parse( in_szSchema ) ) {
        const xmlNode* const pGrammar = xmlDocGetRootElement( m_pDocument.get() );
        for ( xmlNode* const pDefine : ChildElements( pGrammar, "define" ) )
            m_mapDefines[getAttribute( pDefine, "name" )] = pDefine;
        walk( XML::findFirstElement( pGrammar, "start" ), "", nullptr );
    }

    std::map<const xmlNode*, std::set<std::string>> mapPaths; ///< of each pattern, for elements and attributes
    std::map<std::string, std::set<std::string>> mapKeywords; ///< of the attributes that have any
    std::map<std::string, std::string> mapDefaults; ///< "Default: X." of the annotations, where X is a single word

private:
    void walk( xmlNode* in_pPattern, std::string in_strPath, std::set<std::string>* out_pKeywords ) {
        const std::string_view strKind = fromXml( in_pPattern->name );
        if ( strKind == "ref" )
            in_pPattern = m_mapDefines.at( getAttribute( in_pPattern, "name" ) );
        if ( strKind == "value" && out_pKeywords )
            out_pKeywords->insert( fromXml( XmlStringPtr( xmlNodeGetContent( in_pPattern ) ).get() ) );
        if ( strKind == "element" || strKind == "attribute" ) {
            in_strPath += ( strKind == "element" ? "/" : "/@" ) + getAttribute( in_pPattern, "name" );
            mapPaths[in_pPattern].insert( in_strPath );
        }
        for ( xmlNode* const pAnnotation : ChildElements( in_pPattern, "documentation" ) ) {
            std::cmatch match;
            const XmlStringPtr pText( xmlNodeGetContent( pAnnotation ) );
            if ( std::regex_search( fromXml( pText.get() ), match, std::regex( R"(Default:\s+(\S+)\.(\s|$))" ) ) )
                mapDefaults[in_strPath] = match[1];
        }
        std::set<std::string> setKeywords;
        for ( xmlNode* const pChild : ChildElements( in_pPattern ) )
            walk( pChild, in_strPath, strKind == "attribute" ? &setKeywords : out_pKeywords );
        if ( !setKeywords.empty() )
            mapKeywords[in_strPath].merge( setKeywords );
    }

    XmlDocPtr m_pDocument;
    std::map<std::string, xmlNode*> m_mapDefines;
};

void addPaths( const xmlNode* in_pElement, const std::string& in_strParent, std::set<std::string>& out_setPaths ) {
    const std::string strPath = in_strParent + "/" + fromXml( in_pElement->name );
    out_setPaths.insert( strPath );
    for ( const xmlAttr* pAttribute = in_pElement->properties; pAttribute; pAttribute = pAttribute->next )
        out_setPaths.insert( strPath + "/@" + fromXml( pAttribute->name ) );
    for ( xmlNode* const pChild : ChildElements( in_pElement ) )
        addPaths( pChild, strPath, out_setPaths );
}

std::string join( const std::set<std::string>& in_setTexts ) {
    return Velquin::Pstn::Test::join( std::vector<std::string>( in_setTexts.begin(), in_setTexts.end() ) );
}

} // namespace

TEST( Schema, ListsTheKeywordsOfTheTables ) {
    std::map<std::string, std::set<std::string>> mapKeywords{ { "/pstnConfig/@version", { "2.3" } } };
    for ( const char* const szBlock : { "/EchoCancellation", "/AcousticEchoCancellation", "/LevelControl",
                                        "/BackgroundNoiseAttenuation", "/DTMFRemoval" } )
        mapKeywords[szBlock + std::string( "/@type" )] = { "HARDWARE" };
    for ( const KeywordRow& row : getKeywordRows() ) {
        for ( const auto& [strKeyword, nValue] : row.vecKeywords )
            mapKeywords[row.strPath + "/@" + row.strAttribute].insert( strKeyword );
    }
    std::set<std::string> setSeen;
    const Format format( SCHEMA );
    for ( const auto& [strPath, setKeywords] : format.mapKeywords ) {
        const auto it =
            std::find_if( mapKeywords.begin(), mapKeywords.end(),
                          [&path = strPath]( const auto& in_entry ) { return path.ends_with( in_entry.first ); } );
        ASSERT_NE( it, mapKeywords.end() ) << strPath;
        EXPECT_EQ( join( setKeywords ), join( it->second ) ) << strPath;
        setSeen.insert( it->first );
    }
    EXPECT_EQ( setSeen.size(), mapKeywords.size() ) << "an attribute of the tables isn't in the schema";
}

// A new attribute or element is missed here until both documents have it.
TEST( Schema, IsUsedUpByAnExampleAndTheCompleteDocument ) {
    const Format format( SCHEMA );
    EXPECT_GT( format.mapPaths.size(), 200U );
    for ( const std::string& strFile : { EXAMPLES_FOLDER + "/every-attribute.xml", COMPLETE } ) {
        std::set<std::string> setUsed;
        addPaths( xmlDocGetRootElement( parse( strFile ).get() ), "", setUsed );
        for ( const auto& [pPattern, setPaths] : format.mapPaths ) {
            const bool bUsed = std::any_of( setPaths.begin(), setPaths.end(), [&]( const std::string& in_strPath ) {
                return setUsed.contains( in_strPath );
            } );
            EXPECT_TRUE( bUsed ) << *setPaths.begin() << " is not in " << strFile;
        }
    }
}

/// The attributes of the document, by their paths, and the values that attributes of one name have.
void gatherAttributes( xmlNode* in_pElement, const std::string& in_strParent,
                       std::map<std::string, std::vector<xmlAttr*>>& inout_mapAttributes,
                       std::map<std::string, std::set<std::string>>& inout_mapValues ) {
    const std::string strPath = in_strParent + "/" + fromXml( in_pElement->name );
    for ( xmlAttr* pAttribute = in_pElement->properties; pAttribute; pAttribute = pAttribute->next ) {
        const char* const szName = fromXml( pAttribute->name );
        inout_mapAttributes[strPath + "/@" + szName].push_back( pAttribute );
        inout_mapValues[szName].insert( getAttribute( in_pElement, szName ) );
    }
    for ( xmlNode* const pChild : ChildElements( in_pElement ) )
        gatherAttributes( pChild, strPath, inout_mapAttributes, inout_mapValues );
}

/// The lines of the model that a document gives; empty when it doesn't load.
std::string describe( const XmlDocPtr& in_pDocument ) {
    XmlConfig config;
    return loadText( config, getXmlText( in_pDocument.get() ) ).bValid ? describeLines( config ) : "";
}

TEST( Schema, TellsTheDefaultsOfTheModel ) {
    const Format format( SCHEMA );
    const XmlDocPtr pDocument = parse( COMPLETE );
    std::map<std::string, std::vector<xmlAttr*>> mapAttributes;
    std::map<std::string, std::set<std::string>> mapValues;
    gatherAttributes( xmlDocGetRootElement( pDocument.get() ), "", mapAttributes, mapValues );
    std::size_t uCompared = 0;
    for ( const auto& [strPath, strDefault] : format.mapDefaults ) {
        for ( const xmlAttr* const pAttribute : mapAttributes[strPath] ) {
            xmlNode* const pElement = pAttribute->parent;
            const std::string strName = fromXml( pAttribute->name );
            const std::string strValue = getAttribute( pElement, strName.c_str() );
            xmlSetProp( pElement, toXml( strName.c_str() ), toXml( strDefault.c_str() ) );
            const std::string strTold = describe( pDocument );
            xmlUnsetProp( pElement, toXml( strName.c_str() ) );
            EXPECT_NE( strTold, "" ) << strPath;
            EXPECT_TRUE( describe( pDocument ) == strTold ) << strPath << " is not " << strDefault;
            xmlSetProp( pElement, toXml( strName.c_str() ), toXml( strValue.c_str() ) );
            ++uCompared;
        }
    }
    EXPECT_GT( uCompared, 15U );
}

// So is one here that no reader reads, or that the description of the model doesn't tell.
TEST( Schema, HasNoAttributeThatTheModelDoesNotTell ) {
    const Format format( SCHEMA );
    const XmlDocPtr pDocument = parse( COMPLETE );
    const std::string strComplete = describe( pDocument );
    std::map<std::string, std::vector<xmlAttr*>> mapAttributes;
    std::map<std::string, std::set<std::string>> mapValues;
    gatherAttributes( xmlDocGetRootElement( pDocument.get() ), "", mapAttributes, mapValues );
    for ( const auto& [strPath, vecAttributes] : mapAttributes ) {
        const std::string strName = fromXml( vecAttributes.front()->name );
        std::set<std::string> setValues = mapValues[strName];
        if ( const auto it = format.mapKeywords.find( strPath ); it != format.mapKeywords.end() )
            setValues = it->second;
        else
            setValues.insert( { "1", "7", "text" } );
        // What names something else, or is named, may have no other value with which the rest fits together.
        bool bTold = setValues.size() == 1;
        bool bRefused = strName.ends_with( "ID" );
        for ( xmlAttr* const pAttribute : vecAttributes ) {
            const std::string strValue = getAttribute( pAttribute->parent, strName.c_str() );
            for ( auto it = setValues.begin(); it != setValues.end() && !bTold; ++it ) {
                xmlSetProp( pAttribute->parent, pAttribute->name, toXml( it->c_str() ) );
                const std::string strModel = describe( pDocument );
                bTold = !strModel.empty() && strModel != strComplete;
                bRefused = bRefused && ( strModel.empty() || *it == strValue );
            }
            xmlSetProp( pAttribute->parent, pAttribute->name, toXml( strValue.c_str() ) );
        }
        EXPECT_TRUE( bTold || bRefused ) << strPath;
    }
}

TEST( Schema, LetsTheExamplesPass ) {
    std::size_t uExamples = 0;
    for ( const auto& entry : std::filesystem::directory_iterator( EXAMPLES_FOLDER ) ) {
        if ( entry.path().extension() != ".xml" )
            continue;
        SCOPED_TRACE( entry.path() );
        XmlConfig config;
        const LoadResult result = load( config, entry.path().string(), SCHEMA );
        EXPECT_TRUE( result.bValid );
        EXPECT_EQ( Velquin::Pstn::Test::join( result.vecLines ), "" );
        ++uExamples;
    }
    EXPECT_EQ( uExamples, 5U );
}

// ---- What the schema takes

/// Exchanges two elements that stand beside each other.
void exchange( xmlNode* in_pFirst, xmlNode* in_pSecond ) {
    xmlAddPrevSibling( in_pFirst, in_pSecond );
}

TEST( Schema, TakesChildrenInAnyOrderThatMeansNothing ) {
    XmlConfig complete;
    ASSERT_TRUE( load( complete, COMPLETE, SCHEMA ).bValid );
    const XmlDocPtr pDocument = parse( COMPLETE );
    std::vector<xmlNode*> vecElements{ xmlDocGetRootElement( pDocument.get() ) };
    std::set<std::string> setRefused; // of both orders of neighbours, the one that isn't the document's
    for ( std::size_t u = 0; u < vecElements.size(); ++u ) {
        std::vector<xmlNode*> vecChildren;
        for ( xmlNode* const pChild : ChildElements( vecElements[u] ) ) {
            vecChildren.push_back( pChild );
            vecElements.push_back( pChild );
        }
        for ( std::size_t v = 1; v < vecChildren.size(); ++v ) {
            const std::string strFirst = fromXml( vecChildren[v - 1]->name );
            const std::string strSecond = fromXml( vecChildren[v]->name );
            if ( strFirst == strSecond )
                continue;
            exchange( vecChildren[v - 1], vecChildren[v] );
            const std::string strText = getXmlText( pDocument.get() );
            exchange( vecChildren[v], vecChildren[v - 1] );
            XmlConfig config;
            if ( !loadText( config, strText, SCHEMA ).bValid )
                setRefused.insert( strSecond + " before " + strFirst );
            else
                EXPECT_EQ( describeModel( config ), describeModel( complete ) ) << strSecond;
        }
    }
    EXPECT_EQ( join( setRefused ), "analogFxsConfig before analogFxoConfig\n"
                                   "applyTo before disconnectSupervision\n"
                                   "boards before providers\n"
                                   "callControl before physicalInterfaceConfigs\n"
                                   "disconnectSupervision before outboundCallHandling\n"
                                   "outboundCallHandling before inboundCallHandling\n"
                                   "physicalInterfaceConfigs before boards\n" );
}

// ---- What the schema stops

PSTN_CASES( SchemaCases, readCases( "schema.cases" ) );

} // namespace Velquin::Pstn::Test
