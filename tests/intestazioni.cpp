// Only there to compile the headers that the test programs share.
