# SQLiteCpp for the browser: web/libraries compiles it.
set(SQLiteCpp_FOUND TRUE)
