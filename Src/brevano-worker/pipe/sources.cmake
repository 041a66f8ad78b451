list(APPEND BREVANO_WORKER_SOURCES
    pipe/WorkerPipe.cpp
    pipe/WorkerPipe.h)
