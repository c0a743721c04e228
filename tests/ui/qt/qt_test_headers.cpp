// A target with a precompiled header needs a source.
