// The headers that the tests share are compiled for this file, and reused by the others.
