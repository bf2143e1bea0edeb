#error "a header of the library includes a header of the program"
