list(APPEND BREVANO_WORKER_SOURCES
    input/Container.cpp
    input/Container.h
    input/FootageFile.cpp
    input/FootageFile.h
    input/LibavComplaint.cpp
    input/LibavComplaint.h
    input/ReadingLimit.cpp
    input/ReadingLimit.h)
