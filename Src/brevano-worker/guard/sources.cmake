list(APPEND BREVANO_WORKER_SOURCES
    guard/Confinement.cpp
    guard/Confinement.h
    guard/ProcessWatch.cpp
    guard/ProcessWatch.h)
