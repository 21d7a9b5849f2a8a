# Sources of this subsystem, relative to src/.
list(APPEND LARKWELLS_SOURCES
    settings/Appearance.h settings/Appearance.cpp
)
