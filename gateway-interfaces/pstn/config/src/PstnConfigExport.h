#pragma once

/// Marks what velquin-pstn-config exports. Everything else stays hidden.
#if defined( _WIN32 )
#if defined( VELQUIN_PSTN_CONFIG_BUILD )
#define VELQUIN_PSTN_CONFIG_EXPORT __declspec( dllexport )
#else
#define VELQUIN_PSTN_CONFIG_EXPORT __declspec( dllimport )
#endif
#else
#define VELQUIN_PSTN_CONFIG_EXPORT __attribute__( ( visibility( "default" ) ) )
#endif
