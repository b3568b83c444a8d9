// A program that does nothing: what counts is that it links.
int main() { return 0; }
