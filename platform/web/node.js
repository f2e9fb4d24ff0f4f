// node has a fetch that knows no file, and the program takes it if it sees it.
var fetch;
