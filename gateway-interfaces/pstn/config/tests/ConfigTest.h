#pragma once

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include <velquin/Finding.h>
#include <velquin/GlobalConfig.h>
#include <velquin/StringVector.h>
#include <velquin/XML.h>

#include "LogCapture.h"
#include "ModelDescription.h"
#include "PstnConfig.h"
#include "document/LibXml2.h"

namespace Velquin::Pstn::Test {

/// One change to a document: a text that stands in it exactly once, and what stands there instead; or a path, that of
/// the schema or its end, "/a/b[2]" (the first element that has it counts, unless a position says which), and what
/// becomes of the element, as data/cases/common says.
struct Edit {
    std::string strFrom;
    std::string strTo;
};

/// A document for a test: `data/complete.xml`, changed.
class TestDocument {
public:
    TestDocument( const std::vector<Edit>& in_vecEdits = {} );
    explicit TestDocument( std::string in_strText ) : m_strText( std::move( in_strText ) ) {}

    TestDocument& edit( const Edit& in_edit );
    const std::string& getText() const { return m_strText; }
    /// The line on which the tag ends that has the path, or holds the text, which stands exactly once.
    unsigned int getLine( const std::string& in_strText ) const;

    /// Replaces, in a line that is expected, `{file}` by the file, `{schema}` by that of the format, `{line}` by the
    /// line of the tag of the last edit and `{line:text}` by that of the tag that has the path or holds the text.
    std::string expand( std::string in_strExpected, const std::string& in_strFile ) const;

private:
    void editElement( const Edit& in_edit );
    unsigned int getLineOfTag( std::size_t in_uPosition ) const;

    std::string m_strText;
    std::size_t m_uLastEdit = 0;
};

/// A file in the folder for temporary files, removed with the object.
class TemporaryFile {
public:
    explicit TemporaryFile( const std::string& in_strContent );
    TemporaryFile( const TemporaryFile& ) = delete;
    TemporaryFile& operator=( const TemporaryFile& ) = delete;
    ~TemporaryFile();

    const std::string& getPath() const { return m_strPath; }

private:
    std::string m_strPath;
};

/// Folder and files of the source tree.
inline const std::string DATA_FOLDER = PSTN_TEST_DATA;
inline const std::string EXAMPLES_FOLDER = PSTN_TEST_EXAMPLES;
inline const std::string COMPLETE = DATA_FOLDER + "/complete.xml";
inline const std::string ANY_SCHEMA = DATA_FOLDER + "/any.rng"; ///< one that accepts every document
constexpr const char* SCHEMA = PSTN_TEST_SCHEMA;                ///< the schema of the format

/// A file's bytes.
std::string readFile( const std::string& in_strPath );
std::vector<std::string> split( const std::string& in_strText, const std::string& in_strSeparator );
/// Lines as one text, so that a difference shows as a diff.
std::string join( const std::vector<std::string>& in_vecLines );

/// What a load said.
struct LoadResult {
    bool bValid = false;
    std::vector<std::string> vecLines; ///< at WARNING and above, in order
};

/// Runs something and gathers its lines at WARNING and above as the tables have them: "ERROR XmlConfig: text", the
/// logger without the prefix "marovane.pstn.config.". In assertions the source line is "N".
std::vector<std::string> captureLines( const std::function<void()>& in_function );
LoadResult load( XmlConfig& out_config, const std::string& in_strFile, const std::string& in_strSchema = ANY_SCHEMA );
/// Loads a text as a file.
LoadResult loadText( XmlConfig& out_config, const std::string& in_strText,
                     const std::string& in_strSchema = ANY_SCHEMA );
/// Loads a document that must be valid, with the schema of the format, and without a line at WARNING or above.
void loadValid( XmlConfig& out_config, const TestDocument& in_document = {}, const std::string& in_strSchema = SCHEMA );

/// A case of a table: the model is called, or edits are made to the complete document and it is loaded, with a schema
/// that accepts everything unless the case says otherwise; all lines at WARNING and above, exact and in order, see
/// TestDocument::expand; for a document, the verdict, and when it is valid, how its model differs from the complete
/// one.
struct Case {
    std::string strName;
    std::function<void()> call;
    std::vector<std::string> vecLines;
    std::vector<Edit> vecEdits = {};
    bool bValid = false;
    std::vector<std::string> vecChanges = {}; ///< of the model's lines, or "no " and what is gone
    std::string strSchema = ANY_SCHEMA;

    friend void PrintTo( const Case& in_case, std::ostream* out_pStream ) { *out_pStream << in_case.strName; }
};

/// What a file of cases is made of: a line of words, then marked lines, of which "@" is an edit. A "$" at the end of
/// any other ends it, where a blank is last. Of a line of words or of an edit, the next mark between blanks is the end;
/// of a row ("!", "?", ":" or ";"), that of the next row is.
struct Record {
    std::string strHead;
    std::vector<std::string> vecWords; ///< of the head
    std::vector<Edit> vecEdits;
    std::map<char, std::vector<std::string>> mapLines; ///< by mark
};

/// The records of a file in `data`, which says what they mean. A mark that isn't among those given fails the test.
std::vector<Record> readRecords( const std::string& in_strFile, const std::string& in_strMarks );
/// The cases of a file in `data/cases`, where the file `common` says what it is made of.
std::vector<Case> readCases( const std::string& in_strFile );

/// Where an expected line has `{libxml2}`, libxml2 speaks in its own words, which differ between its versions: lines of
/// the two that differ only in such words, and have some, become the same.
void takeWordsOfLibXml2( std::vector<std::string>& inout_vecExpected, const std::vector<std::string>& in_vecLines );

/// Expected lines of assertions: "FILE: EXPRESSION, EXPRESSION; FILE: ...".
std::vector<std::string> assertions( const std::string& in_strAll );
/// Expected lines of classes that don't write.
std::vector<std::string> notImplemented( const std::vector<std::string>& in_vecClasses );

/// All that a model holds, a line for each value, "KEY ... KEY = VALUE", without the lists of defaults. The elements of
/// a list have a line each.
std::string describeLines( const Config& in_config );

/// Every text of the library must be provoked by a case: a table registers its cases for the list of texts.
std::vector<Case> registerCases( std::vector<Case> in_vecCases );
/// The lines of all of them, unexpanded.
std::string getLinesOfCases();

/// An attribute that takes keywords; see data/keywords.rows.
struct KeywordRow {
    std::string strTable;
    std::string strPath; ///< end of the path of its element, the first of which counts
    std::string strAttribute;
    std::vector<std::pair<std::string, int>> vecKeywords; ///< and the values they stand for
    std::string strLine;                                  ///< of the model's lines, up to the value
    std::vector<Edit> vecNeeds;                           ///< what the document needs for these keywords
    std::string strOtherLine = {};                        ///< with any other text; empty when that is refused
    bool bReported = true;                                ///< whether any other text is
};

/// All attributes of the format whose keywords stand in tables; one that needs different documents has several rows.
std::vector<KeywordRow> getKeywordRows();

/// A document as text.
std::string getXmlText( xmlDoc* in_pDocument );

/// The root element of a document of its own, for serializers that are called without a load.
class Element {
public:
    explicit Element( const std::string& in_strText )
        : m_pDocument(
              xmlReadMemory( in_strText.c_str(), static_cast<int>( in_strText.size() ), nullptr, nullptr, 0 ) ) {}

    xmlNode* get() const { return xmlDocGetRootElement( m_pDocument.get() ); }

private:
    XmlDocPtr m_pDocument;
};

/// A new object; null for no class.
template <class T>
auto makeSome() {
    if constexpr ( !std::is_void_v<T> )
        return new T();
    else
        return nullptr;
}

/// Makes the cases of a suite.
class CaseTest : public testing::TestWithParam<Case> {
protected:
    static void check( const Case& in_case );
};

} // namespace Velquin::Pstn::Test

/// Makes tests of a table of cases.
#define PSTN_CASES( Suite, vecCases )                                                                                  \
    using Suite = CaseTest;                                                                                            \
    TEST_P( Suite, GivesExactlyTheseLines ) {                                                                          \
        check( GetParam() );                                                                                           \
    }                                                                                                                  \
    INSTANTIATE_TEST_SUITE_P( Table, Suite, testing::ValuesIn( registerCases( vecCases ) ),                            \
                              []( const auto& in_info ) { return in_info.param.strName; } )
