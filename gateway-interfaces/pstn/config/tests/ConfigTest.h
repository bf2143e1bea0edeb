#pragma once

#include <functional>
#include <map>
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "loading/XmlConfig.h"

namespace Velquin::Pstn::Test {

/// One change to a document: a text that stands in it exactly once, and what stands there instead. When the text is a
/// path (see DocumentPath.h), what becomes of its element: attributes that it has, name="value", or has no more, -name;
/// the name that it has now, <name; what stands behind it, +text, or a copy of which element, */path; gone, -.
struct Edit {
    std::string strFrom;
    std::string strTo;
};

/// A document for a test: `data/complete.xml`, changed.
class TestDocument {
public:
    TestDocument();
    explicit TestDocument( std::string in_strText ) : m_strText( std::move( in_strText ) ) {}

    TestDocument& edit( const Edit& in_edit );
    TestDocument& edit( const std::vector<Edit>& in_vecEdits );
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
extern const char* const DATA_FOLDER;
extern const char* const EXAMPLES_FOLDER;
extern const char* const SCHEMA;     ///< the schema of the format
extern const char* const ANY_SCHEMA; ///< one that accepts every document

/// A file's bytes.
std::string readFile( const std::string& in_strPath );

/// A log line at WARNING or above as the tables have it: "ERROR XmlConfig: text", the logger without the prefix
/// "marovane.pstn.config.". In assertions the source line is "N".
std::string toLine( int in_nLevel, const std::string& in_strLogger, const std::string& in_strText );

/// What a load said.
struct LoadResult {
    bool bValid = false;
    std::vector<std::string> vecLines; ///< at WARNING and above, in order
};

/// Runs something and gathers its lines at WARNING and above.
std::vector<std::string> captureLines( const std::function<void()>& in_function );
LoadResult load( XmlConfig& out_config, const std::string& in_strFile, const std::string& in_strSchema = ANY_SCHEMA );
/// Loads a document that must be valid, with the schema of the format, and without a line at WARNING or above.
void loadValid( XmlConfig& out_config, const TestDocument& in_document, const std::string& in_strSchema = SCHEMA );

/// A case of a table: edits to the complete document, the verdict, and all lines at WARNING and above, exact and in
/// order, see TestDocument::expand; for a document that is valid, how its model differs from the complete one. The
/// schema accepts everything unless the case says otherwise.
struct LoadCase {
    std::string strName;
    std::vector<Edit> vecEdits;
    bool bValid = false;
    std::vector<std::string> vecLines;
    std::vector<std::string> vecChanges; ///< lines of the model's text, see ModelText.h, or "no " and what is gone
    std::string strSchema = ANY_SCHEMA;
};

/// A case that calls the model: what is called, and all lines that it must give.
struct CallCase {
    std::string strName;
    std::function<void()> call;
    std::vector<std::string> vecLines;
};

/// What a file of cases is made of: a line of words, then marked lines, of which "-" and "+" are edits, and "@" is one
/// of an element, whose path is its first word. A line break stands between lines that make one text. A "$" at the end
/// of any other ends it, where a blank is last.
struct Record {
    std::vector<std::string> vecWords;
    std::vector<Edit> vecEdits;
    std::map<char, std::vector<std::string>> mapLines; ///< by mark
};

/// The records of a file in `data`, which says what they mean. A mark that isn't among those given fails the test.
std::vector<Record> readRecords( const std::string& in_strFile, const std::string& in_strMarks );
/// The cases of a file in `data/cases`; its first lines, those of hardware.cases, say what it is made of.
std::vector<LoadCase> readCases( const std::string& in_strFile );

void check( const LoadCase& in_case );
void check( const CallCase& in_case );
/// Where an expected line has `{libxml2}`, libxml2 speaks in its own words, which differ between its versions: lines of
/// the two that differ only in such words, and have some, become the same.
void takeWordsOfLibXml2( std::vector<std::string>& inout_vecExpected, const std::vector<std::string>& in_vecLines );

/// Expected lines of assertions; of several, "FILE: EXPRESSION, EXPRESSION; FILE: ...".
std::string assertion( const std::string& in_strExpression, const std::string& in_strFile );
std::vector<std::string> assertions( const std::string& in_strAll );

/// Lines as one text, so that a difference shows as a diff.
std::string join( const std::vector<std::string>& in_vecLines );

/// Every text of the library must be provoked by a case: a table registers its cases for the list of texts.
template <class TCase>
std::vector<TCase> registerCases( std::vector<TCase> in_vecCases );
/// The lines of all of them, unexpanded.
std::string getLinesOfCases();

inline std::string nameOf( const testing::TestParamInfo<LoadCase>& in_info ) {
    return in_info.param.strName;
}
inline std::string nameOfCall( const testing::TestParamInfo<CallCase>& in_info ) {
    return in_info.param.strName;
}
inline void PrintTo( const LoadCase& in_case, std::ostream* out_pStream ) {
    *out_pStream << in_case.strName;
}
inline void PrintTo( const CallCase& in_case, std::ostream* out_pStream ) {
    *out_pStream << in_case.strName;
}

} // namespace Velquin::Pstn::Test

/// Makes tests of a table of cases.
#define PSTN_LOAD_CASES( Suite, vecCases )                                                                             \
    class Suite : public testing::TestWithParam<Velquin::Pstn::Test::LoadCase> {};                                     \
    TEST_P( Suite, GivesExactlyTheseLines ) {                                                                          \
        Velquin::Pstn::Test::check( GetParam() );                                                                      \
    }                                                                                                                  \
    INSTANTIATE_TEST_SUITE_P( Table, Suite, testing::ValuesIn( Velquin::Pstn::Test::registerCases( vecCases ) ),       \
                              Velquin::Pstn::Test::nameOf )
#define PSTN_CALL_CASES( Suite, vecCases )                                                                             \
    class Suite : public testing::TestWithParam<Velquin::Pstn::Test::CallCase> {};                                     \
    TEST_P( Suite, GivesExactlyTheseLines ) {                                                                          \
        Velquin::Pstn::Test::check( GetParam() );                                                                      \
    }                                                                                                                  \
    INSTANTIATE_TEST_SUITE_P( Table, Suite, testing::ValuesIn( Velquin::Pstn::Test::registerCases( vecCases ) ),       \
                              Velquin::Pstn::Test::nameOfCall )
