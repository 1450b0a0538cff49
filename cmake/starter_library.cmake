# Turns the reviewable text under data/starter/ into one source file, so that a program needs no data
# folder beside it to make a missing store.
set(KALVANE_STARTER_DIR ${CMAKE_SOURCE_DIR}/data/starter)
set(KALVANE_STARTER_SOURCE ${CMAKE_BINARY_DIR}/starter_files.cpp)
file(GLOB KALVANE_STARTER_FILES CONFIGURE_DEPENDS ${KALVANE_STARTER_DIR}/*.tsv
     ${KALVANE_STARTER_DIR}/*.txt ${KALVANE_STARTER_DIR}/drawings/*.MC)
add_custom_command(
  OUTPUT ${KALVANE_STARTER_SOURCE}
  COMMAND ${CMAKE_COMMAND} -DSOURCE_DIR=${KALVANE_STARTER_DIR} -DOUTPUT=${KALVANE_STARTER_SOURCE}
          -P ${CMAKE_SOURCE_DIR}/cmake/embed_files.cmake
  DEPENDS ${KALVANE_STARTER_FILES} ${CMAKE_SOURCE_DIR}/cmake/embed_files.cmake
  COMMENT "Embedding the starter library")
