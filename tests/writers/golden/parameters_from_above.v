//top MODE="SLOW" RATE=48 COEF0=3 COEF2=5 WORD1=Late d
//
// synthesis VERILOG_INPUT_VERSION VERILOG_2001
// qelvar message_off 10463



// (legal notice)




//middle d q
//

//synthesis_resources = fir 1 
//synopsys translate_off
`timescale 1 ps / 1 ps
//synopsys translate_on
module  top_mg4s
	( 
	d,
	q) /* synthesis synthesis_lumenbox=1 */;
	input   [3:0]  d;
	output   [3:0]  q;

	wire  [3:0]   wire_u_fir_q;

	fir   u_fir
	( 
	.d(d),
	.q(wire_u_fir_q));
	defparam
		u_fir.mode = "SLOW",
		u_fir.rate = 48,
		u_fir.size = 4,
		u_fir.coef0 = 3,
		u_fir.coef2 = 5,
		u_fir.word1 = "Late";
	assign
		q = wire_u_fir_q;
endmodule //top_mg4s

//synthesis_resources = fir 1 
//synopsys translate_off
`timescale 1 ps / 1 ps
//synopsys translate_on
module  top
	( 
	d,
	q) /* synthesis synthesis_lumenbox=1 */;
	input   [3:0]  d;
	output   [3:0]  q;

	wire  [3:0]   wire_u_q;

	top_mg4s   u
	( 
	.d(d),
	.q(wire_u_q));
	assign
		q = wire_u_q;
endmodule //top
//VALID FILE
