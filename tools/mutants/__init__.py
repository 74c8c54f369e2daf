"""What tools/mutate is made of: changes of a text, and the copy of the project that they are tried in."""
