// How the host's exports are declared: imported by the plug-in, exported by whoever builds the host.
#pragma once

#ifdef HOST_BUILDS_API
#define HOST_API extern "C" __declspec(dllexport)
#else
#define HOST_API extern "C" __declspec(dllimport)
#endif
