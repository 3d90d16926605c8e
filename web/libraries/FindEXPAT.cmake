# EXPAT for the browser: web/libraries compiles it.
set(EXPAT_FOUND TRUE)
