# cmake -DFROM=file -DTO=file -P copy_once.cmake
# Copies a file that is the user's from then on: one that is there already stays.
if(NOT EXISTS "${TO}")
  file(COPY_FILE "${FROM}" "${TO}")
endif()
