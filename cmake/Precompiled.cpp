// Nothing: the target exists for the precompiled header that others reuse.
