/* a /*/ b */ let inside = 1 */
let after = 2
