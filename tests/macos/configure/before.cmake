# Read by the first project() of a configuration for macOS on another system: what Qt looks for on a Mac and finds only
# there.
add_library(WrapOpenGL::WrapOpenGL INTERFACE IMPORTED GLOBAL)
