#pragma once

/// Marks what velquin-pstn-config exports. Everything else stays hidden, but for a class within an exported one: where
/// it is private to the library, the second macro hides it.
#if defined( _WIN32 )
#if defined( VELQUIN_PSTN_CONFIG_BUILD )
#define VELQUIN_PSTN_CONFIG_EXPORT __declspec( dllexport )
#else
#define VELQUIN_PSTN_CONFIG_EXPORT __declspec( dllimport )
#endif
#define VELQUIN_PSTN_CONFIG_HIDDEN
#else
#define VELQUIN_PSTN_CONFIG_EXPORT __attribute__( ( visibility( "default" ) ) )
#define VELQUIN_PSTN_CONFIG_HIDDEN __attribute__( ( visibility( "hidden" ) ) )
#endif
