#pragma once

/// Marks what velquin-core exports. Everything else stays hidden.
#if defined( _WIN32 )
#if defined( VELQUIN_CORE_BUILD )
#define VELQUIN_CORE_EXPORT __declspec( dllexport )
#else
#define VELQUIN_CORE_EXPORT __declspec( dllimport )
#endif
#else
#define VELQUIN_CORE_EXPORT __attribute__( ( visibility( "default" ) ) )
#endif
