include(${CMAKE_CURRENT_LIST_DIR}/mivo-targets.cmake)
