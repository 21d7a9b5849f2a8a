# Sources of this subsystem, relative to src/.
list(APPEND LARKWELLS_SOURCES
    settings/PreferenceKeys.h settings/PreferenceKeys.cpp
)
