// Nothing: a target whose header is precompiled needs a source.
