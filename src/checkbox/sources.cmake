# Sources of this subsystem, relative to src/.
list(APPEND LARKWELLS_SOURCES
    checkbox/M13Checkbox.h checkbox/M13Checkbox.cpp
    checkbox/M13CheckboxAnimationGenerator.h checkbox/M13CheckboxAnimationGenerator.cpp
    checkbox/M13CheckboxController.h checkbox/M13CheckboxController.cpp
    checkbox/M13CheckboxGestureRecognizer.h checkbox/M13CheckboxGestureRecognizer.cpp
    checkbox/M13CheckboxLayer.h checkbox/M13CheckboxLayer.cpp
    checkbox/M13CheckboxPath.h checkbox/M13CheckboxPath.cpp
    checkbox/M13CheckboxPathGenerator.h checkbox/M13CheckboxPathGenerator.cpp
)
