# The same numbers as figure_numbers, of the same matrix, by vegan, by prop.test, and by the plain definition of the clusters:
#     Rscript second_source.R MATRIX
suppressMessages(library(vegan))

numbers <- scan(commandArgs(TRUE)[1], quiet = TRUE)
size <- numbers[3]
counts <- matrix(numbers[-(1:3)], nrow = numbers[1], byrow = TRUE)
say <- function(what, first, second, value) cat(sprintf("%s %d %d %.17g\n", what, as.integer(first), as.integer(second), value), sep = "")

level <- pnorm(1.96) - pnorm(-1.96)
rarefied <- suppressWarnings(rarefy(counts, size))
for (sample in seq_len(nrow(counts))) {
    sum <- sum(counts[sample, ])
    for (taxon in seq_len(ncol(counts))) {
        limits <- suppressWarnings(prop.test(counts[sample, taxon], sum, conf.level = level, correct = FALSE))$conf.int
        say("low", sample - 1, taxon - 1, limits[1])
        say("high", sample - 1, taxon - 1, limits[2])
    }
    say("rarefied", sample - 1, 0, rarefied[sample])
    say("shannon", sample - 1, 0, diversity(counts[sample, ], "shannon"))
    say("simpson", sample - 1, 0, diversity(counts[sample, ], "simpson"))
}

# The sum of the squared distances of samples from their mean.
dispersion <- function(samples) sum(sweep(samples, 2, colMeans(samples))^2)
shares <- counts / rowSums(counts)
within <- function(first, last) dispersion(shares[first:last, , drop = FALSE])
rise <- function(upper, lower) within(upper[1], lower[2]) - within(upper[1], upper[2]) - within(lower[1], lower[2])

clusters <- lapply(seq_len(nrow(shares)), function(sample) c(sample, sample))
taken <- numeric()
while (length(clusters) > 1) {
    rises <- sapply(seq_len(length(clusters) - 1), function(i) rise(clusters[[i]], clusters[[i + 1]]))
    i <- which.min(rises)
    upper <- clusters[[i]]
    lower <- clusters[[i + 1]]
    clusters[[i]] <- c(upper[1], lower[2])
    clusters[[i + 1]] <- NULL
    step <- length(taken)
    taken <- c(taken, rises[i])
    say("middle", step, lower[2], upper[2])
    say("rise", step, upper[1] - 1, rises[i])
    say("total", step, 0, sum(sapply(clusters, function(cluster) within(cluster[1], cluster[2]))))
}
pieces <- as.numeric(bstick(length(taken), 1))
above <- rev(taken) / dispersion(shares) > pieces
say("zones", 0, 0, 1 + sum(cumprod(above)))
for (k in seq_along(pieces)) say("piece", k, 0, pieces[k])
