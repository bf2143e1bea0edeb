#include <velquin/XMLDocOutputStreamable.h>

#include <memory>
#include <new>
#include <stdexcept>
#include <string>
#include <string_view>

#include <libxml/tree.h>
#include <libxml/xmlerror.h>
#include <libxml/xmlsave.h>

#include <velquin/Finding.h>
#include <velquin/XML.h>

namespace Velquin {

namespace {

class StreamableLog {
    VELQUIN_LOGGER();
};

VELQUIN_LOGGER_IMPL( StreamableLog, "marovane.core.XMLSTLDocOutputStreamableImpl" );

struct DocumentDeleter {
    void operator()( xmlDoc* in_pDocument ) const noexcept { xmlFreeDoc( in_pDocument ); }
};

struct BufferDeleter {
    void operator()( xmlBuffer* in_pBuffer ) const noexcept { xmlBufferFree( in_pBuffer ); }
};

struct SaveContextDeleter {
    void operator()( xmlSaveCtxt* in_pContext ) const noexcept { xmlSaveClose( in_pContext ); }
};

/// Receives libxml2's errors on this thread while it lives. Most operations that make or write a tree report a failure
/// only as such an error. Their callers would write what is left of the document.
class ErrorListener {
public:
    ErrorListener() noexcept : m_pfnOuter( xmlStructuredError ), m_pOuterContext( xmlStructuredErrorContext ) {
        // The error's type is const in later versions of libxml2.
        xmlSetStructuredErrorFunc( this, []( void* inout_pListener, auto in_pError ) {
            if ( in_pError->level >= XML_ERR_ERROR )
                static_cast<ErrorListener*>( inout_pListener )->hear( in_pError->code, in_pError->message );
        } );
    }
    ErrorListener( const ErrorListener& ) = delete;
    ErrorListener& operator=( const ErrorListener& ) = delete;
    ~ErrorListener() { xmlSetStructuredErrorFunc( m_pOuterContext, m_pfnOuter ); }

    /// Throws when there was an error or the last step failed.
    void require( bool in_bDone ) const {
        if ( m_nCode == XML_ERR_NO_MEMORY || ( m_nCode == XML_ERR_OK && !in_bDone ) )
            throw std::bad_alloc();
        if ( m_nCode != XML_ERR_OK )
            throw std::runtime_error( m_strMessage );
    }

private:
    void hear( int in_nCode, const char* in_szMessage ) noexcept {
        // The first error is the cause of all others.
        if ( m_nCode != XML_ERR_OK )
            return;
        m_nCode = in_nCode;
        try {
            m_strMessage = in_szMessage ? in_szMessage : "";
            m_strMessage.erase( m_strMessage.find_last_not_of( '\n' ) + 1 );
        } catch ( ... ) {
            m_nCode = XML_ERR_NO_MEMORY;
        }
    }

    xmlStructuredErrorFunc m_pfnOuter;
    void* m_pOuterContext;
    int m_nCode = XML_ERR_OK;
    std::string m_strMessage;
};

} // namespace

std::ostream& operator<<( std::ostream& inout_stream, const OutputStreamable& in_object ) {
    bool bWritten = false;
    try {
        bWritten = in_object.writeTo( inout_stream );
    } catch ( ... ) {
        reportCurrentException( StreamableLog::getLogger(), "operator<<", __FILE__, __LINE__ );
    }
    try {
        if ( !bWritten )
            inout_stream.setstate( std::ios::failbit );
    } catch ( ... ) {
        // The stream may throw when the bit is set; the bit is set before that.
    }
    return inout_stream;
}

bool XMLSTLDocOutputStreamableImpl::writeTo( std::ostream& inout_stream ) const try {
    const XML::LibraryScope libraryScope;
    const ErrorListener errors;
    const std::unique_ptr<xmlDoc, DocumentDeleter> pDocument( xmlNewDoc( BAD_CAST "1.0" ) );
    errors.require( pDocument != nullptr );
    const bool bMade = writeXML( pDocument.get() );
    errors.require( true );
    if ( !bMade )
        return false;
    const std::unique_ptr<xmlBuffer, BufferDeleter> pBuffer( xmlBufferCreate() );
    errors.require( pBuffer != nullptr );
    std::unique_ptr<xmlSaveCtxt, SaveContextDeleter> pContext(
        xmlSaveToBuffer( pBuffer.get(), "UTF-8", XML_SAVE_FORMAT ) );
    errors.require( pContext != nullptr );
    const bool bSaved = xmlSaveDoc( pContext.get(), pDocument.get() ) >= 0;
    const bool bClosed = xmlSaveClose( pContext.release() ) >= 0;
    errors.require( bSaved && bClosed );
    // When there is no memory for the encoding's name, some versions of libxml2 leave it out without a word.
    const std::string_view strWritten( reinterpret_cast<const char*>( xmlBufferContent( pBuffer.get() ) ) );
    if ( !strWritten.starts_with( "<?xml version=\"1.0\" encoding=\"UTF-8\"?>" ) )
        throw std::bad_alloc();
    // libxml2 writes a text that isn't UTF-8 as it is.
    if ( !xmlCheckUTF8( xmlBufferContent( pBuffer.get() ) ) )
        throw std::runtime_error( "a text is not UTF-8" );

    inout_stream.write( strWritten.data(), static_cast<std::streamsize>( strWritten.size() ) );
    return !inout_stream.fail();
}
VELQUIN_CATCH_AND_RETURN( StreamableLog::getLogger(), false )

} // namespace Velquin
