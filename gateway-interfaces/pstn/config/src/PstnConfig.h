#pragma once

// Includes all that a program needs to load a configuration and to read the model: XmlConfig and every model class.

#include "hardware/TirvanaAnalogBoardConfig.h"
#include "hardware/TirvanaAnalogInterfaceConfig.h"
#include "hardware/TirvanaDigitalBoardConfig.h"
#include "hardware/TirvanaDigitalVirtualBoardConfig.h"
#include "hardware/TirvanaDigitalVirtualInterfaceConfig.h"
#include "hardware/TirvanaProviderConfig.h"
#include "loading/PSTNConfigParamDefs.h"
#include "loading/XmlConfig.h"
#include "physical/CountryMap.h"
#include "physical/TirvanaAnalogInterfacePhysicalConfig.h"
#include "physical/TirvanaDigitalInterfacePhysicalConfig.h"
#include "physical/audio/HardwareAcousticEchoCancellationConfig.h"
#include "physical/audio/HardwareBackgroundNoiseAttenuationConfig.h"
#include "physical/audio/HardwareDtmfRemovalConfig.h"
#include "physical/audio/HardwareEchoCancellationConfig.h"
#include "physical/audio/HardwareLevelControlConfig.h"
#include "physical/audio/TirvanaAudioConfig.h"
