#pragma once

class Files;
class SearchPatience;
class Workers;

/// By whom a search reads, and who may end it.
struct SearchServices {
    Files& files;
    Workers& workers;
    SearchPatience& patience;
};
