# Sources of this subsystem, relative to src/.
