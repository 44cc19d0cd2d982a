// Lambert conformal conic projection on the sphere, in degrees of arc at the reference parallel.
'use strict';
const R = Math.PI / 180;

function lambert(lambda0, phi1, phi2, phi0) {
  const t = (phi) => Math.tan(Math.PI / 4 + (phi * R) / 2);
  const n = Math.log(Math.cos(phi1 * R) / Math.cos(phi2 * R)) / Math.log(t(phi2) / t(phi1));
  const F = (Math.cos(phi1 * R) * Math.pow(t(phi1), n)) / n;
  const rho0 = F / Math.pow(t(phi0), n);
  return (lon, lat) => {
    const rho = F / Math.pow(t(lat), n);
    const th = n * (lon - lambda0) * R;
    return [(rho * Math.sin(th)) / R, (rho0 - rho * Math.cos(th)) / R];
  };
}

module.exports = { lambert };
