namespace awizo {}
